#include "view/dialogs/order_page.h"

#include "base/typography.h"
#include "view/look.h"
#include "view/qt_text.h"

#include <QImage>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <array>

namespace orvane {

namespace {

constexpr double Points = 11;
constexpr double TitlePoints = 18;
constexpr int BannerWidth = 480; // pixels at 96 dots per inch
constexpr int Padding = 5;
constexpr QColor Rule(0xB7, 0x9B, 0x6B); // on white paper, whatever the skin
constexpr std::array Headings{"Objet", "Nombre", "Prix de vente"};

void WriteCell(QTextTable& Table, int Row, int Column, const QString& Text, bool Bold)
{
    QTextCursor Cell = Table.cellAt(Row, Column).firstCursorPosition();
    QTextBlockFormat Aligned;
    Aligned.setAlignment(Column == 0 ? Qt::AlignLeft : Qt::AlignRight);
    Cell.setBlockFormat(Aligned);
    QTextCharFormat Weight;
    Weight.setFontWeight(Bold ? QFont::Bold : QFont::Normal);
    Cell.insertText(Text, Weight);
}

void WriteRows(QTextCursor& Page, const ListeDAchats& Of)
{
    QTextTableFormat Format;
    Format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    Format.setCellPadding(Padding);
    Format.setBorderCollapse(true);
    Format.setBorder(1);
    Format.setBorderBrush(Rule);
    Format.setHeaderRowCount(1); // on every page
    Format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, 64),
                                      QTextLength(QTextLength::PercentageLength, 14),
                                      QTextLength(QTextLength::PercentageLength, 22)});
    const int Last = static_cast<int>(Of.Objets().size()) + 1;
    QTextTable& Table = *Page.insertTable(Last + 1, static_cast<int>(Headings.size()), Format);
    for (int Column = 0; Column < Table.columns(); ++Column)
        WriteCell(Table, 0, Column, QString::fromUtf8(Headings[static_cast<std::size_t>(Column)]),
                  true);
    int Row = 0;
    for (const LigneDePanier& Each : Of.Objets()) {
        ++Row;
        WriteCell(Table, Row, 0, ToQt(Each.Nom), false);
        WriteCell(Table, Row, 1, ToQt(Each.Nb), false);
        WriteCell(Table, Row, 2, ToQt(Each.PrixVente), false);
    }
    WriteCell(Table, Last, 0, QStringLiteral("Total"), true);
    WriteCell(Table, Last, 2, ToQt(Of.Sommes().PrixVente.Texte), true);
}

void WritePage(QTextDocument& Document, const ListeDAchats& Of, const QString& Banner)
{
    Document.setDefaultFont(look::Font(Points));
    QTextCursor Page(&Document);
    if (const QImage Picture(Banner); !Picture.isNull()) {
        Page.insertImage(Picture.scaledToWidth(BannerWidth, Qt::SmoothTransformation));
        Page.insertBlock();
    }
    QTextCharFormat Title;
    Title.setFontPointSize(TitlePoints);
    Title.setFontWeight(QFont::Bold);
    const auto& Order = Of.DeQuoi().Commande;
    const QString Words = Order ? ToQt(Typeset("Commande « ") + *Order + Typeset(" »"))
                                : QStringLiteral("Toutes les commandes");
    Document.setMetaInformation(QTextDocument::DocumentTitle, Words);
    Page.insertText(Words, Title);
    Page.insertBlock(QTextBlockFormat(), QTextCharFormat());
    WriteRows(Page, Of);
}

QString TitleOf(const QTextDocument& Document)
{
    return Document.metaInformation(QTextDocument::DocumentTitle);
}

} // namespace

bool WriteOrderPage(const ListeDAchats& Of, const QString& Banner, const QString& File)
{
    QTextDocument Document;
    WritePage(Document, Of, Banner);
    QSaveFile Out(File);
    if (!Out.open(QIODevice::WriteOnly))
        return false;
    {
        QPdfWriter Writer(&Out);
        Writer.setPageSize(QPageSize(QPageSize::A4));
        Writer.setTitle(TitleOf(Document));
        Document.print(&Writer);
    }
    return Out.commit();
}

void PrintOrderPage(const ListeDAchats& Of, const QString& Banner, QWidget* Above)
{
    QTextDocument Document;
    WritePage(Document, Of, Banner);
    QPrinter Printer;
    Printer.setPageSize(QPageSize(QPageSize::A4));
    Printer.setDocName(TitleOf(Document));
    QPrintDialog Box(&Printer, Above);
    Box.setWindowTitle(QStringLiteral("Imprimer"));
    if (Box.exec() == QDialog::Accepted)
        Document.print(&Printer);
}

} // namespace orvane
