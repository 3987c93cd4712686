// What --fix writes, and what it leaves alone.

#include "check/checked.h"
#include "check/fix.h"
#include "coursetool/build.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

struct Fix : testing::Test {
    CheckedCourse course;

    std::string bodyAfter(const std::string& body) {
        course.setBody(body);
        run();
        const std::string whole = course.work.read("src/pages/1.page");
        return whole.substr(whole.rfind("+++\n") + 4);
    }
    void run() { check::applySafe(course.findings(), course.work.path("src"), report); }
    coursetool::Report report;
};

TEST_F(Fix, settlesWhatCanMeanOneThingOnly) {
    const std::pair<const char*, const char*> rows[] = {
        {"##si12\n", "##SI12\n"},
        {"## SI12\n", "##SI12\n"},
        {"##CHAPEAU \n", "##CHAPEAU\n"},
        {"##SI9\n", "##SI09\n"},
        {"##PIX-5\n", "##PIX-05\n"},
        {"##INTER1.5\n", "##INTER1.50\n"},
        {"##INTER2\n", "##INTER2.00\n"},
        {"##DECLIG1,5\n", "##DECLIG1.5\n"},
        {"##LIERTlà#PAG1\n", "##LIERTlà#PAG001\n"},
        {"##LIERTlà#pag001\n", "##LIERTlà#PAG001\n"},
        {"##IXADESSIN.svg\n", "##IXAdessin.svg\n"},
        {"A¶\nB¶", "A¶\nB¶\n"},
    };
    for (const auto& [before, after] : rows)
        EXPECT_EQ(bodyAfter(before), after) << before;
    EXPECT_THAT(report.lines(), IsEmpty());
}

TEST_F(Fix, leavesWhatCouldMeanAnything) {
    for (const char* body : {"##SJ12\n", "##SI120\n", "##CENTRE\n", "#BOL1\n", "##LIERTlà#PAG777\n",
                             "##IXAdessein.svg\n", "##K1041\n"})
        EXPECT_EQ(bodyAfter(body), body);
}

TEST_F(Fix, keepsEveryOtherByteOfTheFile) {
    const std::string before = "\xEF\xBB\xBF+++\r\nNumeropage = 1\r\nIndex = 1\r\ntitre = \"T\"\r\n"
                               "# un mot\r\n+++\r\n\\+++¶\r\n##SI9\r\nÉté \t ¶\r\n##BOL1";
    course.work.write("src/pages/1.page", before);
    run();
    std::string after = before + "\n";
    after.replace(after.find("##SI9"), 5, "##SI09");
    EXPECT_EQ(course.work.read("src/pages/1.page"), after);
}

TEST_F(Fix, writesThroughNoLink) {
    course.work.write("src/original", CheckedCourse::page("Numeropage = 2\nIndex = 2", "##SI9\n"));
    std::filesystem::create_symlink("../original", course.work.path("src/pages/2.page"));
    run();
    EXPECT_THAT(course.work.read("src/original"), HasSubstr("##SI9\n"));
    EXPECT_TRUE(std::filesystem::is_symlink(course.work.path("src/pages/2.page")));
    EXPECT_THAT(textOf(report), HasSubstr("pages/2.page: avertissement : un lien"));
}

TEST_F(Fix, doesNotTouchALineThatHasChangedSince) {
    course.setBody("##SI9\n");
    const auto findings = course.findings();
    course.setBody("##SI8\n");
    EXPECT_EQ(check::applySafe(findings, course.work.path("src"), report), 0u);
    EXPECT_THAT(course.work.read("src/pages/1.page"), HasSubstr("##SI8\n"));
}

TEST_F(Fix, offersNothingForAnInstalledCourse) {
    course.setBody("##SI9\nA¶\n");
    coursetool::Report built;
    ASSERT_TRUE(coursetool::build(course.work.path("src"), course.work.path("out"), built));
    const auto findings = course.findings("out");
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_FALSE(findings.front().edit);
}

} // namespace
