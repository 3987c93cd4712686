// Whole courses: the one that ships, the gallery, installed ones; and what authors silence.

#include "check/checked.h"
#include "coursetool/build.h"
#include "coursetool/extract.h"
#include "support/course_compiler.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string contentsOf(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> sentencesOf(const std::filesystem::path& course) {
    check::CheckRequest request;
    request.course = course;
    std::vector<std::string> all;
    for (const auto& finding : check::findingsIn(request, CheckedCourse::fonts()))
        all.push_back(finding.place.file + ' ' + finding.record + ' ' + finding.sentence);
    return all;
}

TEST(DemonstrationCourse, hasNothingToFindFaultWithInAnyForm) {
    const Workspace work;
    EXPECT_THAT(sentencesOf(DEMONSTRATION_COURSE), IsEmpty());
    coursetool::Report report;
    ASSERT_TRUE(coursetool::build(DEMONSTRATION_COURSE, work.path("out"), report,
                                  test_support::courseCompiler()));
    EXPECT_THAT(sentencesOf(work.path("out")), IsEmpty());
    coursetool::extract(work.path("out"), work.path("back"), report);
    EXPECT_THAT(sentencesOf(work.path("back")), IsEmpty());
}

TEST(Gallery, showsTheLanguageWithoutAFaultInIt) {
    const CheckedCourse course;
    for (const auto& entry : std::filesystem::directory_iterator(GALLERY)) {
        if (entry.path().extension() != ".src")
            continue;
        std::string body = contentsOf(entry.path());
        std::erase(body, '\r');
        course.setBody(body);
        // The pages it leads to are not there, nor its film; it shows every ink, the pale ones too.
        for (const std::string& told : course.told())
            EXPECT_THAT(told, testing::ContainsRegex("^(N401|F601|F602|R305) "))
                << entry.path().filename();
    }
}

TEST(InstalledCourse, isToldByRecordAndLine) {
    const CheckedCourse course;
    course.setBody("A¶\n##SJ12\nB\n");
    course.work.write("src/pages/10.page",
                      CheckedCourse::page("Numeropage = 9\nIndex = 2", "##SJ12\nA¶\n"));
    course.work.write("src/exercises/t/1.question",
                      CheckedCourse::question("REFERENCE = 101\ntype = 2\nsolution = \"10\"",
                                              "##EXOOP\noui¶\n+++\n##SJ12\nNon¶\n"));
    coursetool::Report report;
    ASSERT_TRUE(coursetool::build(course.work.path("src"), course.work.path("out"), report));
    // Its own way of writing the names of its files does not count.
    std::filesystem::rename(course.work.path("out/Zekx.mdb"), course.work.path("out/ZEKX.MDB"));
    EXPECT_THAT(course.told("out"),
                ElementsAre("L101 ZEKX.MDB page 1:2", "R304 ZEKX.MDB page 1:3",
                            "N407 ZEKX.MDB page 9", "L101 ZEKX.MDB page 9:1",
                            "Q704 qekx.mdb question 101", "L101 qekx.mdb question 101, SiFaux:1"));
}

TEST(InstalledCourse, whoseDatabaseIsBrokenIsAFaultAndNoMore) {
    const Workspace work;
    work.write("out/Zekx.mdb", "rien");
    check::CheckRequest request;
    request.course = work.path("out");
    const auto findings = check::findingsIn(request, CheckedCourse::fonts());
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings.front().rule->code, "A001");
}

TEST(Comment, isDrawnBelowItsQuestionAndToldInItsOwnPlace) {
    const CheckedCourse course;
    const std::string large(200, 'm');
    course.work.write(
        "src/exercises/t/1.question",
        CheckedCourse::question("REFERENCE = 101\ntype = 2\nsolution = \"10000\"",
                                "##EXOOP\noui¶\n##SI20\n+++\nfaux¶\n" + large + "¶\n"));
    EXPECT_THAT(course.told(), ElementsAre("R301 exercises/t/1.question:11"));
}

TEST(Silence, isKeptForTheCourseForAFileAndForACall) {
    const CheckedCourse course;
    course.setBody("##SJ12\n##SI9\nA¶\n");
    ASSERT_THAT(course.told(), ElementsAre("L101 pages/1.page:6", "L104 pages/1.page:7"));
    course.work.write(
        "src/pages/1.page",
        CheckedCourse::page("Numeropage = 1\n# check: ignore L101 d’un autre logiciel\n"
                            "Index = 1",
                            "##SJ12\n##SI9\nA¶\n"));
    EXPECT_THAT(course.told(), ElementsAre("L104 pages/1.page:8"));
    course.work.write("src/check.toml", "# à nous\nignore = \"L104, N407\"\n");
    EXPECT_THAT(course.told(), IsEmpty());
    course.work.write("src/check.toml", "ignorer = \"L104\"\n");
    EXPECT_THAT(course.told(), ElementsAre("A001 check.toml:1", "L104 pages/1.page:8"));
    check::CheckRequest request = course.request();
    request.ignored = {"A001", "L104"};
    EXPECT_THAT(check::findingsIn(request, CheckedCourse::fonts()), IsEmpty());
}

TEST(Suggestion, namesTheDirectiveThatWasMeant) {
    const std::pair<const char*, const char*> rows[] = {
        {"##si12", "« ##SI12 »"},
        {"##BOLD1", "« ##BOL1 »"},
        {"##FINTABL", ""},
        {"##FINTB", "« ##FINTAB »"},
        {"##LEIRTla suite#PAG001", "« ##LIERTla suite#PAG001 »"},
        {"##NUMERATUER", "« ##NUMERATEUR »"},
        {"##DENOMINATEURE", ""},
        {"##QWERTY", ""},
        {"##CHAPAEU", "« ##CHAPEAU »"},
    };
    for (const auto& [line, meant] : rows) {
        const CheckedCourse course;
        course.setBody(std::string(line) + "\nA¶\n");
        std::string sentences;
        for (const auto& finding : course.findings())
            sentences += finding.sentence + '\n';
        if (*meant)
            EXPECT_THAT(sentences, HasSubstr(std::string("vouliez-vous dire ") + meant)) << line;
        else
            EXPECT_THAT(sentences, Not(HasSubstr("vouliez-vous dire"))) << line;
    }
}

TEST(BuildWarnings, tellFaultsOnlyAndNoMoreThanAScreenful) {
    const CheckedCourse course;
    std::string body = "##C007\nA¶\n";
    for (int i = 0; i < 30; ++i)
        body += "##LIERTlà#PAG777\n¶\n";
    course.setBody(body);
    coursetool::Report report;
    coursetool::PlainSourceReader reader(test_support::courseCompiler());
    check::warnOfWrongPages(course.work.path("src"), reader, CheckedCourse::fonts(), report);
    EXPECT_FALSE(report.hasFaults());
    ASSERT_EQ(report.lines().size(), 21u);
    EXPECT_THAT(report.lines().front(), HasSubstr("1.page:8:1: avertissement : "));
    EXPECT_THAT(report.lines().front(), HasSubstr("[N401]"));
    EXPECT_THAT(report.lines().back(), HasSubstr("et 10 autres"));
}

/// Counts the files that are read from the disk.
struct CountingReader : coursetool::PlainSourceReader {
    using PlainSourceReader::PlainSourceReader;
    std::shared_ptr<const coursetool::ReadSource> read(coursetool::SourceKind kind,
                                                       const std::filesystem::path& file,
                                                       coursetool::Report& report) override {
        ++times;
        return PlainSourceReader::read(kind, file, report);
    }
    int times = 0;
};

TEST(BuildWarnings, areOfWhatTheBuildHasReadAlready) {
    const CheckedCourse course;
    course.work.write("src/pages/2.md", "+++\nNumeropage = 2\nIndex = 2\n+++\n[là](page:777)\n");
    CountingReader disk(test_support::courseCompiler());
    coursetool::TwiceReadSources reader(disk);
    coursetool::Report report;
    EXPECT_TRUE(
        coursetool::build(course.work.path("src"), course.work.path("out"), report, reader));
    EXPECT_EQ(disk.times, 4); // two pages, a test, a question
    check::warnOfWrongPages(course.work.path("src"), reader, CheckedCourse::fonts(), report);
    EXPECT_EQ(disk.times, 4);
    EXPECT_THAT(textOf(report), HasSubstr("2.md:5:1: avertissement : "));
    // What had a fault is read again, so that whoever reads next is told of it, too.
    course.work.write("src/pages/3.md", "+++\nNumeropage = 3\n+++\n$\\inconnu$\n");
    coursetool::Report first;
    coursetool::Report second;
    for (coursetool::Report* told : {&first, &second})
        reader.read(coursetool::SourceKind::Page, course.work.path("src/pages/3.md"), *told);
    EXPECT_TRUE(first.hasFaults());
    EXPECT_EQ(first.lines(), second.lines());
}

TEST(HostileCourse, isReadToItsEnd) {
    const CheckedCourse course;
    for (const std::string& body :
         {std::string(100'000, '#'), "##" + std::string(100'000, 'C'),
          std::string("##TAB\n##TAB\n"),
          std::string("##RELIEF\n##POLY\n##OBJ\n##IHDEF\n##LIERI\n##LIERX#\n##LIERF\n##IJA\n"),
          std::string("##FRAC##\n##EXOLI#9\n##IMA..\n##VIDEO../../x\n##IXA/etc/passwd\n"),
          std::string("##SI9\n\x01\x1b[31mA¶\n")}) {
        course.setBody(body + "\n");
        EXPECT_THAT(course.told(), Not(IsEmpty())) << body.substr(0, 40);
    }
}

} // namespace
