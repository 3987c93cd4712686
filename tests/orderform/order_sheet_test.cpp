#include "orderform/order_printing.h"
#include "output/paper/qt_printer.h"
#include "printing/printed_pdf.h"
#include "support/printing.h"

#include <QPrinter>
#include <QTemporaryDir>

namespace {

using namespace orderform;

class Confirmed : public platform::PrinterSetup {
public:
    Outcome ask() override { return Outcome::Confirmed; }
};

/// An order whose texts are as long as they may be.
class OrderSheet : public testing::Test {
protected:
    OrderSheet() {
        for (const Field field : kFields)
            order[field] = QString(kLongestText, u'W');
        order[Field::Town] = QStringLiteral("L’Haÿ-les-Roses");
        order[Field::Quantity] = QStringLiteral("99");
    }

    test_support::PrintedPdf print(QPageSize::PageSizeId size, QPageLayout::Orientation lie) {
        const QString path = directory.filePath(QStringLiteral("order.pdf"));
        printer.device().setOutputFormat(QPrinter::PdfFormat);
        printer.device().setPageSize(QPageSize(size));
        printer.device().setPageOrientation(lie);
        printer.device().setOutputFileName(path);
        EXPECT_EQ(printOrder(order, {setup, printer, fonts}), PrintOutcome::Printed);
        return test_support::PrintedPdf(path);
    }

    QTemporaryDir directory;
    page::FontBook fonts;
    output::QtPrinter printer{fonts};
    Confirmed setup;
    Order order = newOrder();
};

TEST_F(OrderSheet, saysEverythingOnOneSheet) {
    const auto sheets = print(QPageSize::A4, QPageLayout::Portrait).sheets();
    ASSERT_EQ(sheets.size(), 1);
    const QString text = sheets.first().join(u'\n').replace(QChar(QChar::Nbsp), u' ');
    EXPECT_EQ(text.count(QString(kLongestText, u'W')), 6);
    for (const char16_t* words :
         {u"KAROPE", u"L’Haÿ-les-Roses", u"(cédérom) 99 19,90 € 1 970,10 €",
          u"Frais de port 3,50 €", u"Total, toutes taxes comprises 1 973,60 €",
          u"un chèque de 1 973,60 €", u"Date", u"Signature"})
        EXPECT_TRUE(text.contains(QString::fromUtf16(words))) << qPrintable(text);
}

TEST_F(OrderSheet, staysInsideEveryPaper) {
    for (const auto size : {QPageSize::A4, QPageSize::A5, QPageSize::Letter})
        for (const auto lie : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            const auto pdf = print(size, lie);
            const platform::Paper paper = printer.paper();
            EXPECT_EQ(pdf.sheets().size(), 1);
            bool hasFoot = false;
            for (const auto& word : pdf.words()) {
                hasFoot |= word.text == QStringLiteral("Signature");
                EXPECT_GE(word.left, paper.left - 1) << qPrintable(word.text);
                EXPECT_LE(word.right, paper.left + paper.printableWidth + 1);
                EXPECT_LE(word.bottom, paper.top + paper.printableHeight + 1);
            }
            EXPECT_TRUE(hasFoot) << size << ' ' << lie;
        }
}

} // namespace
