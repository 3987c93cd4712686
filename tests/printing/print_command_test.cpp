#include "coursetool/build.h"
#include "coursetool/print.h"
#include "coursetool/tool_pictures.h"
#include "printing/print_case.h"
#include "support/course_compiler.h"
#include "support/fake_message_boxes.h"
#include "viewer/print_command.h"

namespace {

using Outcome = platform::PrinterSetup::Outcome;

class Person : public platform::PrinterSetup {
public:
    Outcome ask() override { return ++asked < 5 ? Outcome::Cancelled : last; }
    Outcome last = Outcome::Confirmed;
    int asked = 0;
};

using PrintCommand = test_support::PrintCase;

TEST_F(PrintCommand, theSetupComesBackUntilItIsConfirmed) {
    open({record(1, "1", "1")});
    test_support::CountingPrinter counting;
    viewer::PagePrinter printing = pages(counting);
    Person setup;
    test_support::FakeMessageBoxes messageBoxes;
    viewer::PrintCommand(setup, printing, messageBoxes).print();
    EXPECT_EQ(setup.asked, 5);
    EXPECT_EQ(counting.sheets, 1);
    Person ending;
    for (const Outcome outcome : {Outcome::Gone, Outcome::Busy}) {
        ending.last = outcome;
        viewer::PrintCommand(ending, printing, messageBoxes).print();
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
        test_support::FakeMessageBoxes messageBoxes;
        viewer::PrintCommand(setup, printing, messageBoxes).print();
        ASSERT_EQ(messageBoxes.messages.size(), row.told ? 1U : 0U);
        if (row.told) {
            EXPECT_EQ(messageBoxes.messages[0].text, QString(row.told));
        }
    }
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
