#include "stage.h"
#include "view/qt_dialogs.h"

#include <QColorDialog>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <clocale>

namespace orvane {

class DialogsOverScreen : public Stage
{
  protected:
    DialogsOverScreen()
    {
        Real.StandAbove(TheForms);
        Deeds["button"] = [](const QString& Words) {
            for (QPushButton* Each : Focused().window()->findChildren<QPushButton*>())
                if (Each->text().remove(u'&') == Words)
                    Click(*Each);
        };
    }

    // Does something to the next box as soon as it is up, which then goes away.
    static void WhenUp(std::function<void(QDialog&)> Do)
    {
        QTimer::singleShot(0, [Do = std::move(Do)] {
            auto* Box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(Box, nullptr);
            EXPECT_NO_THROW(Do(*Box)); // through the toolkit
            EXPECT_FALSE(Box->isVisible());
            if (Box->isVisible())
                Box->reject(); // a test that failed shall not hang
        });
    }
    static void Escape(QWidget& From) { QTest::keyClick(&From, Qt::Key_Escape); }

    QtDialogs Real;
};

TEST_F(DialogsOverScreen, AMessageBearsTheProgramsTitleOneButtonAndPlainText)
{
    const auto Say = [this](const QWidget* Below) {
        WhenUp([Below](QDialog& Box) {
            auto& Message = dynamic_cast<QMessageBox&>(Box);
            EXPECT_EQ(Message.windowTitle(), "Orvane - Artisanat");
            EXPECT_EQ(Message.text(), "Un <b>prix</b>");
            EXPECT_EQ(Message.textFormat(), Qt::PlainText);
            EXPECT_EQ(Message.buttons().size(), 1);
            EXPECT_EQ(Message.parentWidget(), Below);
            Escape(Box);
        });
        Real.MsgBox("Un <b>prix</b>");
    };
    Say(nullptr); // before there is any window
    Show();
    Atelier().txt_Nombre.Text = "trois";
    Say(&Window());
    EXPECT_EQ(Window().focusWidget(), &The<QWidget>("txt_Nombre"))
        << "what is wrong, to be corrected";
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window())) << "the keyboard is back in the window";
}

TEST_F(DialogsOverScreen, APromptGivesWhatWasTypedUnlessItIsCancelled)
{
    Show();
    for (const auto& [Deeds, Answer] :
         {std::pair("Ana<Return>", "Ana"), {"Bob<Esc>", ""}, {"Bob<button Annuler>", ""}}) {
        WhenUp([&](QDialog& Box) {
            EXPECT_EQ(Box.windowTitle(), "Commande");
            EXPECT_EQ(Focused().accessibleName(), "Nom de l'acheteur ?");
            Play(Deeds);
        });
        EXPECT_EQ(Real.InputBox("Nom de l'acheteur ?", "Commande"), Answer) << Deeds;
    }
}

TEST_F(DialogsOverScreen, AColourIsGivenInTheModelsNumbers)
{
    Show();
    WhenUp([](QDialog& Box) {
        dynamic_cast<QColorDialog&>(Box).setCurrentColor(QColor(1, 2, 3));
        Box.accept();
    });
    EXPECT_EQ(Real.ShowColor(), RGB(1, 2, 3));
    WhenUp(Escape);
    EXPECT_EQ(Real.ShowColor(), std::nullopt);
}

TEST(French, IsSpokenByTheToolkitAndLeavesTheCoresNumbersAlone)
{
    EXPECT_EQ(QLocale().toString(1.5), "1,5");
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

} // namespace orvane
