#include "view/dialogs/shopping_list_window.h"

#include "base/csv.h"
#include "base/failure.h"
#include "base/typography.h"
#include "basket/copies.h"
#include "basket/orders.h"
#include "basket/shopping_list.h"
#include "catalogue/catalogue.h"
#include "view/dialogs/order_page.h"
#include "view/look.h"
#include "view/qt_text.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSaveFile>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>
#include <set>

namespace orvane {

namespace {

constexpr QSize WindowSize(960, 600);
constexpr QMargins Margins(16, 14, 16, 14);
constexpr int OwnedWide = 80;

enum Column { Material, Quantity, UnitPrice, Price, Owned, Rest };
constexpr std::array Headings{"Matériau", "Quantité", "Prix unitaire",
                              "Prix",     "J’ai",     "Reste à acheter"};

Qt::CheckState StateOf(Coche Given)
{
    return Given == Coche::Oui   ? Qt::Checked
           : Given == Coche::Non ? Qt::Unchecked
                                 : Qt::PartiallyChecked;
}

// A figure that can't be counted shows as a dash.
QString Shown(const std::string& Figure)
{
    return Figure.empty() ? QStringLiteral("–") : ToQt(Figure);
}

std::filesystem::path BasketOf(const Application& App)
{
    return App.Chemin("/" + PanierFile);
}

class ListWindow : public QDialog
{
  public:
    explicit ListWindow(Application& App)
        : App(App),
          List(App.Bases, BasketOf(App)),
          Orders(new QComboBox),
          Realms(new QComboBox),
          Table(new QTableWidget(0, static_cast<int>(Headings.size()))),
          Sums(new QLabel),
          Remark(new QLabel)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowFlag(Qt::WindowMinMaxButtonsHint);
        setWindowTitle(QStringLiteral("Liste d’achats"));
        setFont(look::Font(look::DialogPoints));
        MakeTable();
        LayOut();
        FillChoices();
        connect(Orders, &QComboBox::currentIndexChanged, this, [this] { Read(); });
        connect(Realms, &QComboBox::currentIndexChanged, this, [this] { Read(); });
        connect(Table, &QTableWidget::itemChanged, this,
                [this](const QTableWidgetItem* Item) { Edited(*Item); });
        Read();
    }

    // The order in hand is chosen.
    void Open()
    {
        FillChoices();
        Orders->setCurrentIndex(Orders->findData(ToQt(CommandeEnMain(App))));
        show();
        raise();
        activateWindow();
    }

  protected:
    bool event(QEvent* Event) override
    {
        if (Event->type() == QEvent::WindowActivate) { // the basket may have changed meanwhile
            FillChoices();
            Read();
        }
        return QDialog::event(Event);
    }

  private:
    void MakeTable()
    {
        QStringList Words;
        for (const char* Each : Headings)
            Words << QString::fromUtf8(Each);
        Table->setHorizontalHeaderLabels(Words);
        Table->setAccessibleName(windowTitle());
        Table->verticalHeader()->hide();
        Table->setSelectionBehavior(QAbstractItemView::SelectRows);
        Table->setSelectionMode(QAbstractItemView::SingleSelection);
        Table->setAlternatingRowColors(true);
        Table->setTabKeyNavigation(false);
        Table->setEditTriggers(QAbstractItemView::AllEditTriggers &
                               ~QAbstractItemView::EditTriggers(QAbstractItemView::CurrentChanged));
        Table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
        Table->horizontalHeader()->setSectionResizeMode(Material, QHeaderView::Stretch);
        Table->horizontalHeader()->setSectionResizeMode(Owned, QHeaderView::Fixed);
        Table->setColumnWidth(Owned, OwnedWide);
        Table->horizontalHeader()->setHighlightSections(false);
        auto* Space = new QShortcut(Qt::Key_Space, Table, nullptr, nullptr, Qt::WidgetShortcut);
        connect(Space, &QShortcut::activated, this, [this] { TickCurrent(); });
    }

    void LayOut()
    {
        auto* Choices = new QHBoxLayout;
        for (const auto& [Words, Box] :
             {std::pair{"&Commande :", Orders}, std::pair{"&Royaume :", Realms}}) {
            auto* Caption = new QLabel(ToQt(Typeset(Words)));
            Caption->setBuddy(Box);
            Choices->addWidget(Caption);
            Choices->addWidget(Box, 1);
        }
        Orders->setAccessibleName(QStringLiteral("Commande"));
        Realms->setAccessibleName(QStringLiteral("Royaume"));
        for (QLabel* Each : {Sums, Remark}) {
            Each->setTextFormat(Qt::PlainText);
            Each->setWordWrap(true);
            Each->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        }
        auto* Buttons = new QHBoxLayout;
        const auto Add = [&](const char* Words, const char* Tip, auto Do) {
            auto* Button = new QPushButton(QString::fromUtf8(Words));
            Button->setAutoDefault(false);
            Button->setToolTip(QString::fromUtf8(Tip));
            connect(Button, &QPushButton::clicked, this, Do);
            Buttons->addWidget(Button);
        };
        Add("Copier les &achats", "La liste, une case par colonne d’un tableur",
            [this] { QGuiApplication::clipboard()->setText(ToQt(CopieDesAchats(List))); });
        Add("Copier pour l’ache&teur", "Objets, nombres et prix de vente, rien du coût",
            [this] { QGuiApplication::clipboard()->setText(ToQt(CopiePourAcheteur(List))); });
        Add("Achats en CS&V…", "Enregistrer la liste pour un tableur",
            [this] { Save(QStringLiteral("achats.csv"), AchatsEnCsv(List)); });
        Add("Commande &en CSV…", "Enregistrer les objets de la commande pour un tableur",
            [this] { Save(QStringLiteral("commande.csv"), CommandeEnCsv(List)); });
        Add("&Page à remettre…", "La commande en PDF, pour son acheteur, rien du coût",
            [this] { SavePage(); });
        Add("&Imprimer…", "La même page, sur papier",
            [this] { PrintOrderPage(List, Banner(), this); });
        Buttons->addStretch();
        Add("&Fermer", "Revenir aux écrans", [this] { close(); });

        auto* All = new QVBoxLayout(this);
        All->setContentsMargins(Margins);
        All->addLayout(Choices);
        All->addWidget(Table, 1);
        All->addWidget(Sums);
        All->addWidget(Remark);
        All->addLayout(Buttons);
        resize(WindowSize);
    }

    // What was chosen stays chosen, if it is still there.
    void FillChoices()
    {
        const QSignalBlocker Quiet(Orders);
        const QSignalBlocker QuietToo(Realms);
        App.Door.Event([&] {
            ListeDAchats Whole(App.Bases, BasketOf(App));
            Whole.Lire({});
            std::set<std::string> Names{CommandeEnMain(App)};
            for (const LigneDePanier& Each : Whole.Objets())
                Names.insert(Each.Acheteur);
            const QVariant Chosen = Orders->currentData();
            Orders->clear();
            Orders->addItem(QStringLiteral("Toutes les commandes"));
            for (const std::string& Each : Names)
                Orders->addItem(ToQt(Each), ToQt(Each));
            Orders->setCurrentIndex(std::max(0, Orders->findData(Chosen)));
        });
        if (Realms->count() > 0)
            return;
        Realms->addItem(QStringLiteral("Les trois royaumes"));
        for (const std::string& Each : Royaumes())
            Realms->addItem(ToQt(Each), ToQt(Each));
    }

    static std::optional<std::string> ChosenIn(const QComboBox& Box)
    {
        const QVariant Data = Box.currentData();
        return Data.isNull() ? std::nullopt : std::optional(FromQt(Data.toString()));
    }

    void Read()
    {
        App.Door.Event([&] { List.Lire({ChosenIn(*Orders), ChosenIn(*Realms)}); });
        ShowRows();
    }

    void ShowRows()
    {
        const QSignalBlocker Quiet(Table);
        Table->setRowCount(static_cast<int>(List.Lignes().size()));
        for (int Row = 0; Row < Table->rowCount(); ++Row)
            ShowRow(Row, List.Lignes()[static_cast<std::size_t>(Row)]);
        const SommesDAchats& All = List.Sommes();
        Sums->setText(QStringLiteral("Achats : %1   Reste à payer : %2\n"
                                     "Commande : prix coûtant %3, prix de vente %4")
                          .arg(Shown(All.Prix), Shown(All.Reste), Shown(All.PrixCoûtant.Texte),
                               Shown(All.PrixVente.Texte)));
        std::string Words =
            List.Objets().empty() ? "Cette commande n’a pas d’objet ici." : List.SansMatériaux();
        for (const std::string& Fault : {All.PrixCoûtant.Faute, All.PrixVente.Faute})
            if (!Fault.empty())
                Words += (Words.empty() ? "" : "\n") + Fault;
        Remark->setText(ToQt(Words));
        Remark->setVisible(!Words.empty());
    }

    void ShowRow(int Row, const LigneAchat& What)
    {
        const std::array<QString, Headings.size()> Cells{
            ToQt(What.Matériau),
            Shown(What.Quantité),
            What.PrixUnitaire.empty() ? QStringLiteral("selon l’objet") : ToQt(What.PrixUnitaire),
            What.SansPrix ? Shown(What.Prix) + QStringLiteral(" (prix à saisir)")
                          : Shown(What.Prix),
            ToQt(What.Possédé),
            Shown(What.Reste)};
        for (int Each = Material; Each <= Rest; ++Each) {
            auto* Item = new QTableWidgetItem(Cells[static_cast<std::size_t>(Each)]);
            Item->setToolTip(Qt::convertFromPlainText(ToQt(What.Détail)));
            Item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            if (Each == Material) {
                Item->setFlags(Item->flags() | Qt::ItemIsUserCheckable);
                Item->setCheckState(StateOf(What.Cochée));
            } else {
                Item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            if (Each == Owned)
                Item->setFlags(Item->flags() | Qt::ItemIsEditable);
            Table->setItem(Row, Each, Item);
        }
    }

    // In whichever cell of the row the keyboard is.
    void TickCurrent()
    {
        if (QTableWidgetItem* Item = Table->item(Table->currentRow(), Material))
            Item->setCheckState(Item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }

    void Edited(const QTableWidgetItem& Item)
    {
        const auto Row = static_cast<std::size_t>(Item.row());
        const bool Ticked = Item.checkState() == Qt::Checked;
        const std::string Typed = FromQt(Item.text().trimmed().replace(u'.', u','));
        const int Where = Item.column();
        App.Door.Event([&] {
            if (Where == Material)
                List.Cocher(Row, Ticked);
            else if (!List.Posséder(Row, Typed))
                throw Failure(FailureKind::Told, Typeset("« " + Typed +
                                                         " » n’est pas un nombre de 0 ou plus : "
                                                         "rien n’a changé."));
        });
        ShowRows();
    }

    QString AskFile(const QString& Proposed, const QString& Kind)
    {
        QFileDialog Box(this, QStringLiteral("Enregistrer"), {}, Kind);
        Box.setAcceptMode(QFileDialog::AcceptSave);
        Box.setViewMode(QFileDialog::List); // details come half in English
        Box.selectFile(Proposed);
        return Box.exec() == QDialog::Accepted ? Box.selectedFiles().value(0) : QString();
    }

    void TellUnwritten(const QString& File)
    {
        App.MsgBox(Typeset("« " + FromQt(File) + " » n’a pas pu être écrit."));
    }

    // Of the realm that the list is for, or else of the one in force.
    QString Banner() const
    {
        const std::string Realm = List.DeQuoi().Royaume.value_or(App.Globals.RoyaumeCourant);
        return ToQt(App.Chemin("/Interface/Bannière" + Realm + ".gif"));
    }

    void SavePage()
    {
        const QString File = AskFile(QStringLiteral("commande.pdf"), QStringLiteral("PDF (*.pdf)"));
        if (!File.isEmpty() && !WriteOrderPage(List, Banner(), File))
            TellUnwritten(File);
    }

    void Save(const QString& Proposed, const std::string& Rows)
    {
        const QString File = AskFile(Proposed, QStringLiteral("CSV (*.csv)"));
        if (File.isEmpty())
            return;
        QSaveFile Out(File);
        const std::string Whole = std::string(Utf8Mark) + Rows;
        const bool Written = Out.open(QFile::WriteOnly) &&
                             Out.write(Whole.data(), static_cast<qint64>(Whole.size())) ==
                                 static_cast<qint64>(Whole.size()) &&
                             Out.commit();
        if (!Written)
            TellUnwritten(File);
    }

    Application& App;
    ListeDAchats List;
    QComboBox* Orders;
    QComboBox* Realms;
    QTableWidget* Table;
    QLabel* Sums;
    QLabel* Remark;
};

void CopyOfOrder(Application& App, std::string (*Copy)(const ListeDAchats&))
{
    App.Door.Event([&] {
        ListeDAchats List(App.Bases, BasketOf(App));
        List.Lire({CommandeEnMain(App), {}});
        if (List.Objets().empty())
            throw Failure(FailureKind::Told, Typeset("La commande « " + CommandeEnMain(App) +
                                                     " » est vide : rien n’a été copié."));
        QGuiApplication::clipboard()->setText(ToQt(Copy(List)));
    });
}

} // namespace

void OpenShoppingList(Application& App)
{
    static QPointer<ListWindow> Opened;
    if (Opened == nullptr)
        Opened = new ListWindow(App);
    Opened->Open();
}

void CopyForBuyer(Application& App)
{
    CopyOfOrder(App, CopiePourAcheteur);
}

void CopyPurchases(Application& App)
{
    CopyOfOrder(App, CopieDesAchats);
}

} // namespace orvane
