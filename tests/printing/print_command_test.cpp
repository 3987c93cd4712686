#include "coursetool/build.h"
#include "coursetool/print.h"
#include "coursetool/tool_pictures.h"
#include "printing/print_case.h"
#include "support/course_compiler.h"
#include "support/fake_message_boxes.h"
#include "support/fake_print_preview.h"
#include "viewer/print_command.h"
#include "viewer/window_case.h"

namespace {

using Outcome = platform::PrinterSetup::Outcome;

class Person : public platform::PrinterSetup {
public:
    Outcome ask() override { return ++asked < 5 ? Outcome::Cancelled : last; }
    Outcome last = Outcome::Confirmed;
    int asked = 0;
};

class PrintCommand : public test_support::PrintCase, public viewer::PrintNotices {
protected:
    void tellPrinted(const QString& line, const std::function<void()>& show) override {
        told = line;
        showFile = show;
    }
    void run(platform::PrinterSetup& setup, viewer::PagePrinter& printing) {
        viewer::PrintCommand({setup, preview, printing, messageBoxes, *this, opener}).print();
    }

    test_support::FakePrintPreview preview;
    test_support::FakePdfOpener opener;
    test_support::FakeMessageBoxes messageBoxes;
    QString told;
    std::function<void()> showFile;
};

TEST_F(PrintCommand, theSetupComesBackUntilItIsConfirmed) {
    open({record(1, "1", "1")});
    test_support::CountingPrinter counting;
    viewer::PagePrinter printing = pages(counting);
    Person setup;
    run(setup, printing);
    EXPECT_EQ(setup.asked, 5);
    EXPECT_EQ(counting.sheets, 1);
    Person ending;
    for (const Outcome outcome : {Outcome::Gone, Outcome::Busy}) {
        ending.last = outcome;
        run(ending, printing);
        EXPECT_EQ(counting.sheets, 1) << "the program ends, or another job is under way";
    }
    EXPECT_TRUE(messageBoxes.messages.empty());
}

TEST_F(PrintCommand, aJobThatIsCutIsTold) {
    open({record(1, "1", "3")});
    Person setup;
    const struct {
        int stoppedAfter, refused;
        bool canEnd;
        const char* told;
    } rows[] = {{9, -1, true, nullptr},
                {1, -1, true, "L’impression a été interrompue\u00A0: 1 page sur\u00A03."},
                {2, -1, true, "L’impression a été interrompue\u00A0: 2 pages sur\u00A03."},
                {9, 2, true, "L’impression a été interrompue\u00A0: 2 pages sur\u00A03."},
                {9, -1, false, "L’impression n’a pas pu être terminée\u00A0: des pages manquent."}};
    for (const auto& row : rows) {
        test_support::CountingPrinter counting;
        counting.refused = row.refused;
        counting.canEnd = row.canEnd;
        auto printing = pages(counting, [&] { return counting.sheets == row.stoppedAfter; });
        messageBoxes.messages.clear();
        told.clear();
        run(setup, printing);
        EXPECT_EQ(told.isEmpty(), row.told != nullptr);
        ASSERT_EQ(messageBoxes.messages.size(), row.told ? 1U : 0U);
        if (row.told) {
            EXPECT_EQ(messageBoxes.messages[0].text, QString(row.told));
        }
    }

    open({record(1, "1", "3"), record(2, "", ""), record(3, "", "")});
    test_support::CountingPrinter counting;
    auto printing = pages(counting, [&] {
        bench->cours.isGone = counting.sheets == 2;
        return false;
    });
    messageBoxes.messages.clear();
    run(setup, printing);
    ASSERT_EQ(messageBoxes.messages.size(), 1U);
    EXPECT_EQ(messageBoxes.messages[0].text,
              "Le cours n’a pas pu être lu en entier\u00A0: il manque 1 page sur\u00A03. "
              "Vérifiez le disque ou le réseau.");
}

TEST_F(PrintCommand, thePreviewDecidesWhatIsPrinted) {
    Person setup;
    const struct {
        const char *first, *last;
        std::optional<int> answer;
        QStringList choices; ///< as the preview is given them
        int sheets;
        const char* told;
    } rows[] = {
        {"1", "3", 0, {"Le chapitre (3 pages)", "Cette page"}, 3, "3 pages imprimées."},
        {"1", "3", 1, {"Le chapitre (3 pages)", "Cette page"}, 1, "1 page imprimée."},
        {"1", "3", std::nullopt, {"Le chapitre (3 pages)", "Cette page"}, 0, ""},
        {"2", "2", 0, {"Cette page"}, 1, "1 page imprimée."},
        {"3", "3", 0, {"Le chapitre (1 page)", "Cette page"}, 1, "1 page imprimée."},
        {"3", "2", 0, {}, 0, ""}, // nothing to print is nothing to look at
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first + std::string(" to ") + row.last);
        open({record(2, row.first, row.last), record(1, "", ""), record(3, "", "")});
        test_support::CountingPrinter counting;
        auto printing = pages(counting);
        bench->bound.moveTo(0);
        preview.answer = row.answer;
        preview.choices.clear();
        told.clear();
        run(setup, printing);
        EXPECT_EQ(preview.choices, row.choices);
        EXPECT_EQ(counting.sheets, row.sheets);
        EXPECT_EQ(told, QString(row.told));
        EXPECT_EQ(bench->bound.TextID, "2");
    }
}

/// What a page leaves behind, here the caption of a link, shows on the next in the preview as it
/// will on paper, whatever was looked at before.
TEST_F(PrintCommand, thePreviewShowsTheSheetsThatAreThenPrinted) {
    const QString leaving = QStringLiteral("Texte¶\r\n##LIER1perdu\r\n");
    open(
        {record(1, "1", "3", leaving),
         record(2, "", "", QStringLiteral("##LIERTseul#X\r\n") + test_support::lines(90) + leaving),
         record(3, "", "", QStringLiteral("##LIERTlien#X\r\n"))});
    class Keeping : public test_support::CountingPrinter {
    public:
        bool print(const page::Sheet& sheet) override {
            sheetsPrinted.push_back(test_support::textOf(sheet));
            return CountingPrinter::print(sheet);
        }
        std::vector<QString> sheetsPrinted;
    } keeping;
    auto printing = pages(keeping);
    std::vector<QString> shown;
    const QString before = bench->bound.code;
    preview.look = [&](platform::PrintProposal& proposal) {
        for (const int page : {2, 0, 1}) // in any order
            proposal.sheets(0, page, platform::kPlainPaper);
        proposal.sheets(1, 0, platform::kPlainPaper);
        EXPECT_EQ(bench->bound.code, before);
        EXPECT_EQ(bench->bound.position(), 0);
        for (int page = 0; page < proposal.pageCount(0); ++page)
            for (const page::Sheet& sheet : proposal.sheets(0, page, platform::kPlainPaper))
                shown.push_back(test_support::textOf(sheet));
    };
    Person setup;
    run(setup, printing);
    EXPECT_GT(shown.size(), 3U);
    EXPECT_EQ(shown, keeping.sheetsPrinted);
}

TEST_F(PrintCommand, theFileThatWasWrittenIsShownOnDemand) {
    open({record(1, "1", "1")});
    Person setup;
    test_support::CountingPrinter counting;
    auto printing = pages(counting);
    run(setup, printing);
    EXPECT_FALSE(showFile) << "paper cannot be opened";
    counting.where.printer = "Salle 12";
    run(setup, printing);
    EXPECT_EQ(told, QStringLiteral("1 page envoyée à l’imprimante «\u00A0Salle 12\u00A0»."));

    counting.where = {"/tmp/un%1/La réfraction.pdf", {}};
    run(setup, printing);
    EXPECT_EQ(told, QStringLiteral("1 page écrite dans «\u00A0La réfraction.pdf\u00A0»."));
    ASSERT_TRUE(showFile);
    showFile();
    EXPECT_EQ(opener.files, QStringList{counting.where.file});
    EXPECT_TRUE(messageBoxes.messages.empty());
    opener.canOpen = false;
    showFile();
    ASSERT_EQ(messageBoxes.messages.size(), 1U);
    EXPECT_TRUE(messageBoxes.messages[0].text.contains(counting.where.file));
}

/// The demonstration course, printed by the tool.
class ToolPrint : public testing::Test {
protected:
    /// What it reports.
    std::string print(int page, const QString& file) {
        coursetool::Report report;
        const std::filesystem::path course = directory.filePath("cours").toStdString();
        if (!std::filesystem::exists(course))
            coursetool::build(DEMONSTRATION_COURSE, course, report, test_support::courseCompiler());
        page::FontBook fonts;
        coursetool::ToolPictures pictures(course, {}, report);
        coursetool::print({course, page, directory.filePath(file).toStdString(), {}}, fonts,
                          pictures, report);
        std::string said;
        for (const std::string& line : report.lines())
            said += line + '\n';
        return said;
    }

    QTemporaryDir directory;
};

TEST_F(ToolPrint, theSheetsOfThePrintButton) {
    EXPECT_EQ(print(4, "p.pdf"), "");
    const test_support::PrintedPdf pdf(directory.filePath("p.pdf"));
    const auto sheets = pdf.sheets();
    int footers = 0;
    QString text;
    for (const QStringList& sheet : sheets) {
        footers +=
            sheet.last().contains(QStringLiteral("© KAROPE 2026 - page %1").arg(footers + 1));
        text += sheet.join(u' ');
    }
    EXPECT_EQ(footers, 3) << "pages 3 to 5";
    for (const char16_t* words : {u"alpha α Α", u"Des unités qui en découlent", u"Doublet"})
        EXPECT_TRUE(text.contains(QString::fromUtf16(words)));
}

TEST_F(ToolPrint, faults) {
    EXPECT_NE(print(999, "p.pdf").find("numéro 999"), std::string::npos);
    EXPECT_NE(print(4, "nulle/part.pdf").find("part.pdf"), std::string::npos);
    EXPECT_FALSE(QFile::exists(directory.filePath("p.pdf")));
}

} // namespace
