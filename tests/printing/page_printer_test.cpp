#include "look/scroll_bar.h"
#include "output/paper/escape_watch.h"
#include "output/pdf/pdf_printer.h"
#include "printing/print_case.h"

#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTest>

namespace {

using PagePrinter = test_support::PrintCase;

TEST_F(PagePrinter, aPageAloneHasItsColumnInTheMiddleAndNoMention) {
    open({record(2, "2", "2",
                 QStringLiteral("Gauche¶\r\n##ALDR\r\n##BOL1\r\nDroite¶\r\n##BOL0\r\n"))});
    const auto pdf = print();
    EXPECT_EQ(pdf.sheets(), (QList<QStringList>{{"Gauche", "Droite", footer()}}));

    const auto words = pdf.words();
    ASSERT_GE(words.size(), 3);
    const platform::Paper paper = printer.paper();
    const double left = paper.left + (paper.printableWidth - 9000) / 2;
    EXPECT_NEAR(words[0].left, left, 20);
    EXPECT_NEAR(words[1].right, left + 9000, 20);
    // The footer is centred, two lines above the foot of what can be printed.
    page::Font font;
    const double height = bench->fonts.height(font);
    EXPECT_NEAR(words.last().right + words[2].left, paper.width, 30);
    EXPECT_NEAR((words[2].top + words[2].bottom) / 2,
                paper.top + paper.printableHeight - 1.5 * height, 40);

    const QString used = pdf.listed("pdffonts").join(u'\n');
    for (const char* face : {"LiberationSans ", "LiberationSans-Bold "})
        EXPECT_TRUE(used.contains(QLatin1String(face))) << qPrintable(used);
}

TEST_F(PagePrinter, aRangeIsOneJobInTheOrderOfThePageNumbers) {
    open({record(13, "11", "13"), record(11, "1", "1"), record(12, "0", "0")});
    EXPECT_EQ(print().sheets(), (QList<QStringList>{{"Voici la page 11", footer(" - page 1")},
                                                    {"Voici la page 12", footer(" - page 2")},
                                                    {"Voici la page 13", footer(" - page 3")}}));
}

TEST_F(PagePrinter, rangesAsTheFieldsHaveThem) {
    const struct {
        int from; ///< position of the record that is current
        const char* first;
        const char* last;
        QList<int> pages;
    } rows[] = {
        {0, "2", "4", {2, 5, 4}},           // a number without a page has the first record
        {0, "4", "6", {4, 5, 5}},           // the upper bound too
        {2, "6", "7", {4, 4}},              // beyond the table the record before stays
        {2, "-2", "0", {4, 4, 5}},          // also on the other side
        {0, "", "", {5}},                   // blank fields read as 0
        {0, "", "2", {5, 5, 2}},            //
        {0, " 2x", "2.4", {2}},             // as numbers are read everywhere
        {0, "99999999999", "2", {5, 5, 2}}, // what fits no page number counts as 0
        {0, "4", "2", {}},
        {0, "4", "", {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first + std::string(" to ") + row.last);
        open({record(5, row.first, row.last), record(2, "", ""), record(4, row.first, row.last)});
        bench->bound.moveTo(row.from);
        const QString current = bench->bound.TextID;
        // Number 5 would be the highest of the table; it is out of the way.
        bench->state.PageByNumber->resize(6);
        QFile::remove(path());
        if (row.pages.isEmpty()) {
            test_support::CountingPrinter counting;
            EXPECT_EQ(pages(counting).imprimepage().wanted, 0);
            EXPECT_EQ(counting.jobs + counting.sheets, 0);
            continue;
        }
        const auto sheets = print().sheets();
        ASSERT_EQ(sheets.size(), row.pages.size());
        for (qsizetype i = 0; i < sheets.size(); ++i)
            EXPECT_EQ(sheets[i].first(), QStringLiteral("Voici la page %1").arg(row.pages[i]));
        EXPECT_EQ(bench->bound.TextID, current);
    }
}

TEST_F(PagePrinter, theScreenIsLeftAlone) {
    const QString tall = QStringLiteral("Une ligne¶\r\n##IMAABSENTE.BMP\r\n").repeated(120);
    open({record(1, "1", "2", tall),
          record(2, "", "", "##OBJILLUS\r\nnulle part¶\r\n##OBJPRINCIPAL\r\n##SI24\r\n")});
    auto* bar = bench->control<look::ScrollBar>("VScroll1");
    bar->setValue(bar->minimum() / 2);
    const auto seen = [&] {
        return std::tuple(bench->window.shownPage().recording.size(), bar->minimum(),
                          bar->maximum(), bar->value(), bar->isVisible(),
                          bench->window.grab().toImage(), bench->window.windowTitle(),
                          bench->bound.code, bench->bound.TextID, bench->state.HistoryPos,
                          bench->window.cursor().shape());
    };
    const auto before = seen();
    const auto sheets = print().sheets();
    EXPECT_TRUE(before == seen());
    bar->setValue(bar->minimum());
    EXPECT_EQ(bar->value(), bar->minimum());
    // The illustration is not printed; the footer has the letters of the page's end.
    ASSERT_EQ(sheets.size(), 3);
    EXPECT_EQ(sheets.last(), QStringList{footer(" - page 2")});
    const auto words = test_support::PrintedPdf(path()).words();
    EXPECT_GT(words.last().bottom - words.last().top, 240) << "larger than 10 points";
}

TEST_F(PagePrinter, aJobIsBoundedAndEndsAfterTheSheetInWorkWhenStopped) {
    open({record(1, "1", "2000000000")});
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&bench->window));
    test_support::CountingPrinter counting;
    const auto pointer = [this] { return bench->window.cursor().shape(); };
    int underHourglass = 0;
    counting.whilePrinting = [&] { underHourglass += pointer() == Qt::WaitCursor; };
    pages(counting).imprimepage();
    EXPECT_EQ(counting.sheets, viewer::kMaxPrintedPages);
    EXPECT_EQ(counting.ended, 1);
    EXPECT_EQ(underHourglass, counting.sheets);
    EXPECT_EQ(pointer(), Qt::ArrowCursor);

    // The windows' own messages, as they come while a sheet is being printed.
    QWidget window;
    QWidget child(&window);
    QWidget help;
    const auto escape = [] {
        return new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    };
    const struct {
        const char* name;
        QWidget& to;
        std::function<QEvent*()> event;
        int sheets;
    } rows[] = {
        {"Escape", child, escape, 3},
        {"close", window, [] { return new QEvent(QEvent::Close); }, 3},
        {"Escape in the help", help, escape, 5},
        {"a window beside, a hint, that goes", help, [] { return new QEvent(QEvent::Close); }, 5},
        {"what is closed inside", child, [] { return new QEvent(QEvent::Close); }, 5},
    };
    open({record(1, "1", "5")});
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        test_support::CountingPrinter stopped;
        stopped.whilePrinting = [&] {
            if (stopped.sheets == 3)
                QCoreApplication::postEvent(&row.to, row.event());
        };
        output::EscapeWatch watch(window);
        const auto run = pages(stopped, [&] { return watch.isAsked(); }).imprimepage();
        EXPECT_EQ(stopped.sheets, row.sheets);
        EXPECT_EQ(run.printed, row.sheets);
        EXPECT_EQ(run.isCut(), row.sheets == 3);
        EXPECT_EQ(stopped.ended, 1);
        EXPECT_EQ(bench->bound.TextID, "1");
    }
}

TEST_F(PagePrinter, aFileHasTheOutlineAndTheLinksBetweenItsPages) {
    const QString links = QStringLiteral("##LIERTsuite#PAG012\r\n##LIERTailleurs#PAG001\r\n"
                                         "##LIERTabsente#PAG013\r\n##LIERTmodule#EXE012\r\n");
    // Number 13 has no page; the first record is printed in its place.
    open({record(1, "11", "13", QStringLiteral("Accueil¶\r\n")),
          record(11, "11", "13", links + QStringLiteral("Une ligne¶\r\n").repeated(90)),
          record(12, "", "")});
    bench->bound.moveTo(1);
    output::PdfPrinter pdf(path(), fonts);
    ASSERT_FALSE(pages(pdf).imprimepage().isCut());
    using test_support::PrintedPdf;
    const QString outline = PrintedPdf::run("pdftohtml", {"-xml", "-stdout", path()});
    EXPECT_EQ(outline.count("<item"), 3) << "one line for a page of several sheets\n"
                                         << qPrintable(outline);
    EXPECT_GT(PrintedPdf(path()).sheets().size(), 3);
    // To 12 only: neither to a page of another run, nor to what is not there, nor to a module.
    const QString json = PrintedPdf::run("qpdf", {"--json=1", "--json-key=objects", path()});
    EXPECT_EQ(json.count("\"/Subtype\": \"/Link\""), 1) << qPrintable(json);
    EXPECT_TRUE(json.contains("\"/Dest\": \"page12\"")) << qPrintable(json);

    // A job that is stopped before a page that others lead to is a file all the same.
    output::PdfPrinter stopped(path(), fonts);
    int asked = 0;
    EXPECT_TRUE(pages(stopped, [&] { return ++asked == 1; }).imprimepage().isCut());
    EXPECT_EQ(stopped.error(), QString());
    EXPECT_EQ(test_support::PrintedPdf(path()).sheets().size(), 1);
}

TEST_F(PagePrinter, aPageThatCannotBeReadSaysSoInItsPlace) {
    const QString large = QStringLiteral("##SI24\r\nGrand¶\r\n");
    open({record(1, "1", "3", large), record(2, "", ""), record(3, "", "")});
    printer.device().setOutputFormat(QPrinter::PdfFormat);
    printer.device().setOutputFileName(path());
    const auto goesAway = [this] {
        bench->cours.isGone = true;
        return false;
    };
    const auto run = pages(printer, goesAway).imprimepage();
    EXPECT_EQ(run.unread, 2);
    EXPECT_TRUE(run.isCut());
    const QString sentence = QStringLiteral("Cette page n’a pas pu être lue.");
    EXPECT_EQ(test_support::PrintedPdf(path()).sheets(),
              (QList<QStringList>{{"Grand", footer(" - page 1")},
                                  {sentence, footer(" - page 2")},
                                  {sentence, footer(" - page 3")}}));
    EXPECT_EQ(bench->bound.code, large) << "the page on screen can be printed once more";

    // A field that paper does not show may be damaged.
    bench->cours.isGone = false;
    bench->cours.unreadable = {"moteur"};
    EXPECT_EQ(pages(printer).imprimepage().unread, 0);
    bench->cours.unreadable = {"fpc"};
    EXPECT_EQ(pages(printer).imprimepage().unread, 3);
}

TEST_F(PagePrinter, withoutAPrinterNothingHappens) {
    open({record(1, "1", "2"), record(2, "", "")});
    printer.device().setOutputFormat(QPrinter::PdfFormat);
    printer.device().setOutputFileName(directory.filePath("nulle/part.pdf"));
    EXPECT_FALSE(pages(printer).imprimepage().isCut());
    EXPECT_FALSE(printer.error().isEmpty());
    EXPECT_EQ(bench->bound.TextID, "1");
    EXPECT_EQ(print().sheets().size(), 2) << "the next job is not affected";
}

} // namespace
