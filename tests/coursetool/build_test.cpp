#include "coursetool/build.h"
#include "coursetool/workspace.h"
#include "support/course_compiler.h"

#include <gmock/gmock.h>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr char kPage[] = "+++\nNumeropage = 1\n+++\nA\n";

struct Build : testing::Test {
    Workspace work;
    coursetool::Report report;

    bool build() {
        report = {};
        return coursetool::build(work.path("src"), work.path("out"), report);
    }
};

TEST_F(Build, writesBothDatabasesAndTheFiles) {
    work.write("src/pages/10.page", "\xEF\xBB\xBF+++\r\nNumeropage = 2\r\n+++\r\nA\r\nB\r\n");
    work.write("src/pages/1.page", "+++\nNumeropage = 1\nIndex = -4\ntitre = \"é\"\nsuite = true\n"
                                   "+++\n##BOL1\n\\+++\n\\\\+++\n+++\nfin");
    work.write("src/pages/2.page", "+++\nNumeropage = 3\n+++");
    work.write("src/exercises/b/chapter.toml", "Chapitre = 2\nTitre = \"T\"\nNbquest = 1\n");
    work.write("src/exercises/b/1.question",
               "+++\nREFERENCE = 201\ntype = 3\nsolution = \"eau\"\n+++\nQ\n+++\nF\n");
    work.write("src/exercises/a/chapter.toml", "Chapitre = 1\n");
    work.write("src/exercises/a/1.question", "+++\nREFERENCE = 101\n+++\nQ");
    work.write("src/files/couv1.jpg", "image");
    work.write("src/files/sub/b.bmp", "b");
    work.write("src/disc/ZEKXDATA/c.bmp", "c");
    ASSERT_TRUE(build()) << textOf(report);
    EXPECT_EQ(textOf(report), "");
    EXPECT_THAT(work.rows("out/Zekx.mdb", "COURS"),
                ElementsAre(R"({"Numeropage":1,"Index":-4,"titre":"é","precedent":false,)"
                            R"("suite":true,"imprimable":false,"moteur":false,"debutimp":null,)"
                            R"("finimp":null,"sommaire":null,)"
                            R"("fpc":"##BOL1\r\n+++\r\n\\+++\r\n+++\r\nfin"})",
                            HasSubstr(R"("Numeropage":2,)"), HasSubstr(R"("fpc":null)")));
    EXPECT_THAT(work.rows("out/Zekx.mdb", "cours")[1], HasSubstr(R"("fpc":"A\r\nB\r\n")"));
    EXPECT_THAT(work.rows("out/qekx.mdb", "DESCRIPTION"),
                ElementsAre(R"({"Chapitre":1,"Titre":null,"Nbquest":null})",
                            R"({"Chapitre":2,"Titre":"T","Nbquest":1})"));
    EXPECT_THAT(
        work.rows("out/qekx.mdb", "Contenu"),
        ElementsAre(
            R"({"REFERENCE":101,"type":null,"solution":null,"question":"Q","SiFaux":null})",
            R"({"REFERENCE":201,"type":3,"solution":"eau","question":"Q\r\n","SiFaux":"F\r\n"})"));
    EXPECT_THAT(work.files("out"), ElementsAre("Zekx.mdb", "couv1.jpg", "disc/ZEKXDATA/c.bmp",
                                               "qekx.mdb", "sub/b.bmp"));
}

TEST_F(Build, namesAMissingCompilerOfMarkdownOnce) {
    work.write("src/pages/1.md", kPage);
    work.write("src/pages/2.md", "+++\nNumeropage = 2\n+++\nB\n");
    EXPECT_FALSE(build());
    EXPECT_EQ(report.faultCount(), 1u) << textOf(report);
    EXPECT_THAT(textOf(report), HasSubstr("src/pages/1.md: ici, le Markdown n’est pas lu"));
}

TEST_F(Build, ofBadSourcesLeavesTheCourseAsItWas) {
    work.write("src/pages/1.page", kPage);
    work.write("src/files/a.txt", "old");
    ASSERT_TRUE(build());
    work.write("out/own.txt", "kept");
    const std::string before = work.read("out/Zekx.mdb");
    work.write("src/files/a.txt", "new");
    work.write("src/pages/2.page", kPage);
    EXPECT_FALSE(build());
    EXPECT_EQ(work.read("out/Zekx.mdb"), before);
    EXPECT_EQ(work.read("out/a.txt"), "old");
    EXPECT_THAT(work.files("out"), ElementsAre("Zekx.mdb", "a.txt", "own.txt", "qekx.mdb"));
}

TEST_F(Build, putsEverythingBackWhenAFileCannotBePutInPlace) {
    work.write("src/pages/1.page", kPage);
    work.write("src/files/a.txt", "old");
    ASSERT_TRUE(build());
    const std::string before = work.read("out/Zekx.mdb");
    work.write("src/pages/2.page", "+++\nNumeropage = 2\n+++\n");
    work.write("src/files/a.txt", "new");
    work.write("src/files/b.txt", "new");
    work.write("src/files/z.txt", "in the way of a directory");
    work.write("out/z.txt/file", "x");
    EXPECT_FALSE(build());
    EXPECT_THAT(textOf(report), HasSubstr("z.txt: "));
    EXPECT_EQ(work.read("out/Zekx.mdb"), before);
    EXPECT_EQ(work.read("out/a.txt"), "old");
    EXPECT_THAT(work.files("out"), ElementsAre("Zekx.mdb", "a.txt", "qekx.mdb", "z.txt/file"));
}

TEST_F(Build, replacesFilesWhoseNamesDifferInLetterCase) {
    work.write("src/pages/1.page", kPage);
    work.write("src/files/Été.bmp", "new");
    work.write("out/ZEKX.MDB", "old");
    work.write("out/ÉTÉ.BMP", "old");
    ASSERT_TRUE(build()) << textOf(report);
    EXPECT_THAT(work.files("out"), ElementsAre("Zekx.mdb", "qekx.mdb", "Été.bmp"));
    EXPECT_EQ(work.read("out/Été.bmp"), "new");
}

TEST_F(Build, refusesFileNamesThatClash) {
    work.write("src/pages/1.page", kPage);
    for (const char* name : {"a.bmp", "A.BMP", "zekx.MDB", "Disc/x", "sub/été", "sub/ÉTÉ"})
        work.write(std::string("src/files/") + name, "x");
    EXPECT_FALSE(build());
    const std::string text = textOf(report);
    EXPECT_THAT(text, HasSubstr("files/a.bmp: même nom que « A.BMP »"));
    EXPECT_THAT(text, HasSubstr("files/sub/été: même nom que « sub/ÉTÉ »"));
    EXPECT_THAT(text, HasSubstr("files/zekx.MDB: ce nom est celui"));
    EXPECT_THAT(text, HasSubstr("files/Disc: ce nom est celui"));
    EXPECT_EQ(report.faultCount(), 4u) << text;
}

TEST_F(Build, doesNotFollowLinksOutOfTheSources) {
    namespace fs = std::filesystem;
    work.write("secret", kPage);
    work.write("away/chapter.toml", "Chapitre = 1\n");
    work.write("src/pages/1.page", kPage);
    work.write("src/files/a.txt", "x");
    work.write("src/exercises/t/1.question", "+++\nREFERENCE = 101\n+++\n");
    fs::create_symlink("a.txt", work.path("src/files/same.txt"));
    for (const char* link : {"src/pages/2.page", "src/files/b.txt", "src/exercises/t/chapter.toml",
                             "src/exercises/t/2.question"})
        fs::create_symlink(work.path("secret"), work.path(link));
    fs::create_directory_symlink(work.path("src"), work.path("src/files/loop"));
    fs::create_directory_symlink(work.path("away"), work.path("src/exercises/u"));
    fs::create_directory_symlink(work.path("away"), work.path("src/disc"));
    EXPECT_FALSE(build());
    for (const char* link : {"pages/2.page", "files/b.txt", "t/chapter.toml", "t/2.question",
                             "exercises/u", "src/disc"})
        EXPECT_THAT(textOf(report),
                    HasSubstr(std::string(link) + ": ce lien mène hors du dossier"));
    EXPECT_THAT(textOf(report), HasSubstr("files/loop: ni fichier ni dossier"));
    EXPECT_EQ(report.faultCount(), 7u) << textOf(report);
}

/// The course that is replaced may be anybody's.
TEST_F(Build, writesThroughNoLinkInTheCourse) {
    namespace fs = std::filesystem;
    work.write("victim/d.bmp", "mine");
    work.write("src/pages/1.page", kPage);
    work.write("src/files/a.txt", "new");
    fs::create_directories(work.path("out"));
    fs::create_symlink(work.path("victim/d.bmp"), work.path("out/a.txt"));
    fs::create_symlink(work.path("victim/none.mdb"), work.path("out/Zekx.mdb"));
    fs::create_directory_symlink(work.path("victim"), work.path("out/.orvalente-cours"));
    ASSERT_TRUE(build()) << textOf(report);
    EXPECT_EQ(work.read("out/a.txt"), "new");
    EXPECT_FALSE(fs::is_symlink(work.path("out/a.txt")));
    work.write("src/disc/ZEKXDATA/d.bmp", "theirs");
    fs::create_directories(work.path("out/disc"));
    fs::create_directory_symlink(work.path("victim"), work.path("out/disc/ZEKXDATA"));
    EXPECT_FALSE(build());
    EXPECT_THAT(textOf(report), HasSubstr("un lien y mène ailleurs"));
    EXPECT_EQ(work.read("victim/d.bmp"), "mine");
    EXPECT_THAT(work.files("victim"), ElementsAre("d.bmp"));
}

TEST_F(Build, namesAnOutputThatCannotBeWritten) {
    work.write("src/pages/1.page", kPage);
    work.write("out", "a file");
    EXPECT_FALSE(build());
    EXPECT_THAT(textOf(report), HasSubstr(work.path("out").string() +
                                          ": le dossier ne peut pas être créé : un fichier"));
    EXPECT_TRUE(report.hasFailures());
    EXPECT_EQ(work.read("out"), "a file");
    std::filesystem::remove(work.path("out"));
    std::filesystem::create_directory(work.path("out"));
    std::filesystem::permissions(work.path("out"), std::filesystem::perms{0555});
    const uid_t user = geteuid();
    ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0); // root may write anything
    EXPECT_FALSE(build());
    ASSERT_EQ(seteuid(user), 0);
    EXPECT_THAT(textOf(report), HasSubstr("les droits d’accès l’interdisent"));
}

TEST(BuildOutput, amongTheSourcesIsRecognised) {
    const Workspace work;
    work.write("src/pages/1.page", kPage);
    const auto lies = [&](const std::string& output) {
        return coursetool::liesAmongSources(work.path("src"), work.path(output));
    };
    EXPECT_TRUE(lies("src"));
    EXPECT_TRUE(lies("src/pages/.."));
    EXPECT_TRUE(lies("src/files/out"));
    EXPECT_TRUE(lies("src/disc/"));
    EXPECT_FALSE(lies("src/out"));
    EXPECT_FALSE(lies("src2"));
}

TEST(DemonstrationCourse, builds) {
    const std::filesystem::path source = DEMONSTRATION_COURSE;
    if (!std::filesystem::exists(source / "pages"))
        GTEST_SKIP() << "no demonstration course in this tree";
    const Workspace work;
    coursetool::Report report;
    EXPECT_TRUE(coursetool::build(source, work.path("out"), report, test_support::courseCompiler()))
        << textOf(report);
    EXPECT_EQ(textOf(report), "");
    EXPECT_GE(work.rows("out/Zekx.mdb", "cours").size(), 12u);
}

} // namespace
