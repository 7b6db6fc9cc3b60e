#include "stage.h"

#include <QIcon>
#include <QLineEdit>

namespace orvane {

class WindowOfScreen : public Stage
{
  protected:
    QStringList TabOrder()
    {
        QStringList Result;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* First = QApplication::focusWidget();
        do {
            Result << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != First && Result.size() < 50);
        return Result;
    }
};

TEST_F(WindowOfScreen, IsNamedTitledAndSizedByTheModel)
{
    Show();
    EXPECT_EQ(Window().objectName(), "frm_Atelier");
    EXPECT_EQ(Window().windowTitle(), "Atelier d'essai");
    EXPECT_EQ(Window().size(), QSize(800, 600));
    EXPECT_EQ(Window().minimumSize(), Window().maximumSize());
    Atelier().Caption = "Forge";
    Atelier().Width = 9000;
    EXPECT_EQ(Window().windowTitle(), "Forge");
    EXPECT_EQ(Window().size(), QSize(600, 600));
}

TEST_F(WindowOfScreen, HasAWidgetUnderEachControlsName)
{
    Show();
    for (const Control* Each : Atelier().Controls())
        EXPECT_NE(Window().findChild<QWidget*>(ToQt(Each->Name())), nullptr) << Each->Name();
}

TEST_F(WindowOfScreen, FollowsPlacesInTwips)
{
    Show();
    Atelier().txt_Nom.Left = 1500;
    Atelier().txt_Nom.Width = 3135;
    EXPECT_EQ(The<QLineEdit>(Atelier().txt_Nom).geometry(), QRect(100, 80, 209, 24));
}

TEST_F(WindowOfScreen, HiddenControlsAreHiddenAndPassedOver)
{
    Atelier().txt_Nom.Visible = false;
    Show();
    EXPECT_EQ(Window().findChild<QWidget*>("txt_Nom"), nullptr) << "made when it is first seen";
    EXPECT_FALSE(TabOrder().contains("txt_Nom"));
    Atelier().txt_Nom.Visible = true;
    QCoreApplication::processEvents();
    EXPECT_TRUE(The<QWidget>(Atelier().txt_Nom).isVisible());
    EXPECT_TRUE(TabOrder().contains("txt_Nom"));
    Atelier().txt_Nom.Visible = false;
    QCoreApplication::processEvents();
    EXPECT_FALSE(The<QWidget>(Atelier().txt_Nom).isVisible());
    EXPECT_FALSE(TabOrder().contains("txt_Nom"));
    Atelier().shp_Gauche.Visible = false;
    Atelier().shp_Gauche.Visible = true;
    EXPECT_EQ(Window().childAt(300, 50), &The<QWidget>(Atelier().txt_Nombre));
}

TEST_F(WindowOfScreen, TabGoesAsTheEyeDoesPastLockedBoxes)
{
    Show();
    The<QWidget>(Atelier().cmd_Retour).setFocus();
    EXPECT_EQ(TabOrder(), (QStringList{"txt_Nombre", "txt_Nom", "cbo_Objet", "lst_Noms", "lst_Prix",
                                       "cmd_Ajouter", "cmd_Retour"}));
}

TEST_F(WindowOfScreen, TabFollowsAMovedControl)
{
    Show();
    Atelier().txt_Nom.Top = 15 * 15;
    QCoreApplication::processEvents();
    The<QWidget>(Atelier().cmd_Retour).setFocus();
    EXPECT_EQ(TabOrder().mid(0, 2), (QStringList{"txt_Nom", "txt_Nombre"}));
}

TEST_F(WindowOfScreen, InputsBearTheLabelBesideThem)
{
    Show();
    EXPECT_EQ(The<QWidget>(Atelier().txt_Nombre).accessibleName(), "Nb d'objets");
    EXPECT_EQ(The<QWidget>(Atelier().cbo_Objet).accessibleName(), "Objet");
    Atelier().lbl_Nom.Caption = "Acheteur :";
    QCoreApplication::processEvents();
    EXPECT_EQ(The<QWidget>(Atelier().txt_Nom).accessibleName(), "Acheteur");
}

TEST_F(WindowOfScreen, EscapeIsTheWayBackFromAnyControl)
{
    for (Control* From :
         {static_cast<Control*>(&Atelier().txt_Nombre), static_cast<Control*>(&Atelier().cbo_Objet),
          static_cast<Control*>(&Atelier().lst_Noms),
          static_cast<Control*>(&Atelier().cmd_Ajouter)}) {
        Show();
        The<QWidget>(*From).setFocus();
        const int Before = Atelier().WaysBack;
        Press(Qt::Key_Escape);
        EXPECT_EQ(Atelier().WaysBack, Before + 1) << From->Name();
        EXPECT_FALSE(Window().isVisible());
    }
    Show();
    Atelier().GoesBack = false; // as on the home screen, whose way back ends the run
    const int Before = Atelier().WaysBack;
    Press(Qt::Key_Escape);
    EXPECT_EQ(Atelier().WaysBack, Before);
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(WindowOfScreen, ClosingByTheFrameAsksTheModel)
{
    Show();
    Window().close();
    EXPECT_EQ(Atelier().WaysBack, 1);
    EXPECT_FALSE(Atelier().IsVisible());
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(WindowOfScreen, PanelsLieBelowEverything)
{
    Show();
    QWidget& Panel = The<QWidget>(Atelier().shp_Gauche);
    EXPECT_EQ(Window().childAt(300, 50), &The<QWidget>(Atelier().txt_Nombre));
    EXPECT_LT(Window().children().indexOf(&Panel),
              Window().children().indexOf(&The<QWidget>(Atelier().txt_Nombre)));
}

} // namespace orvane
