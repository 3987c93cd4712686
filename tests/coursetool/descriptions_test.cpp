// What pictures show: from Markdown and the author's file into a course, out of it and back.

#include "coursetool/build.h"
#include "coursetool/extract.h"
#include "coursetool/workspace.h"
#include "support/course_compiler.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

struct Descriptions : testing::Test {
    Workspace work;

    void page(const std::string& name, const std::string& body) const {
        work.write("src/pages/" + name + ".md", "+++\nNumeropage = " + name + "\n+++\n" + body);
    }
    std::string build(const std::string& from = "src", const std::string& to = "out") {
        coursetool::Report report;
        coursetool::build(work.path(from), work.path(to), report, test_support::courseCompiler());
        return textOf(report);
    }
};

TEST_F(Descriptions, standInAFileOfTheCourse) {
    work.write("src/files/Descriptions.txt", "# À relire\na.png : Un");
    page("1", "![](B.png \"Deux\")\n\n![](a.png \"Un\")\n");
    page("2", "![](b.PNG \"Deux\")\n");
    EXPECT_EQ(build(), "");
    EXPECT_EQ(work.read("out/Descriptions.txt"), "# À relire\na.png : Un\nB.png : Deux\n");

    coursetool::Report report;
    coursetool::extract(work.path("out"), work.path("again"), report);
    EXPECT_EQ(textOf(report), "");
    EXPECT_EQ(build("again", "out2"), "");
    EXPECT_EQ(work.read("out2/Descriptions.txt"), work.read("out/Descriptions.txt"));
}

TEST_F(Descriptions, ofOnePictureAreTheSameEverywhere) {
    work.write("src/files/descriptions.txt", "a.png : Un\n");
    page("1", "mots\n\n![](a.png \"Autre\")\n");
    EXPECT_THAT(build(), HasSubstr("1.md:6:5: « a.png » est décrite autrement ailleurs : « Un »"));
    EXPECT_FALSE(work.has("out/descriptions.txt"));
}

TEST_F(Descriptions, goWithThePicturesThatHadThem) {
    page("1", "![](a.png \"Un\")\n");
    EXPECT_EQ(build(), "");
    EXPECT_EQ(work.read("out/descriptions.txt"), "a.png : Un\n");
    page("1", "![](a.png)\n");
    EXPECT_EQ(build(), "");
    EXPECT_EQ(work.read("out/descriptions.txt"), "");
}

TEST_F(Descriptions, areReadFromNoFileOutsideTheSources) {
    work.write("secret.txt", "a.png : secret\n");
    std::filesystem::create_directories(work.path("src/files"));
    std::filesystem::create_symlink(work.path("secret.txt"),
                                    work.path("src/files/descriptions.txt"));
    page("1", "mots\n");
    EXPECT_NE(build(), "");
    EXPECT_FALSE(work.has("out/descriptions.txt"));
}

} // namespace
