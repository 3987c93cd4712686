// What `new` writes: a course that builds and passes `check`, and what it adds to one.

#include "coursetool/program.h"

#include <gmock/gmock.h>

#include <regex>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::SizeIs;

struct NewCourse : Program {
    /// `check` has nothing to say, and the course builds without a word.
    void expectSound(const std::string& course) {
        const Outcome checked = run({"check", QString::fromStdString(course)});
        EXPECT_EQ(checked.code, 0);
        EXPECT_EQ(checked.out + checked.err, "rien à redire\n");
        const Outcome built = run({"build", QString::fromStdString(course), "-o", "out"});
        EXPECT_EQ(built.code, 0);
        EXPECT_EQ(built.err, "");
    }
    std::vector<std::string> numbers(const std::string& field) {
        std::vector<std::string> found;
        const std::regex pattern("\"" + field + "\":([^,}]*)");
        const bool ofPage = field != "REFERENCE" && field != "Nbquest";
        const char* table = ofPage ? "cours" : field == "Nbquest" ? "DESCRIPTION" : "Contenu";
        for (const std::string& row : work.rows(ofPage ? "out/Zekx.mdb" : "out/qekx.mdb", table))
            if (std::smatch match; std::regex_search(row, match, pattern))
                found.push_back(match[1]);
        return found;
    }
    void replace(const std::string& file, const std::string& from, const std::string& to) {
        std::string text = work.read(file);
        ASSERT_THAT(text, HasSubstr(from));
        work.write(file, text.replace(text.find(from), from.size(), to));
    }
};

TEST_F(NewCourse, isSoundAsItIs) {
    const Outcome written = run("new a/cours");
    ASSERT_EQ(written.code, 0) << written.err;
    EXPECT_THAT(written.out, HasSubstr("a/cours/LISEZ-MOI.md\n"));
    expectSound("a/cours");
    EXPECT_THAT(work.rows("out/Zekx.mdb", "cours"), SizeIs(3));
    EXPECT_THAT(work.rows("out/qekx.mdb", "Contenu"), SizeIs(4));
    EXPECT_TRUE(work.has("out/eprouvette.svg"));
    // An empty directory will do as well.
    fs::create_directory(work.path("vide"));
    EXPECT_EQ(run("new vide/").code, 0);
    EXPECT_EQ(work.files("vide"), work.files("a/cours"));
}

TEST_F(NewCourse, isNeverWrittenOverAnythingNorThroughALink) {
    fs::create_directory(work.path("vide"));
    fs::create_directory_symlink("vide", work.path("lien"));
    fs::create_directory_symlink("nulle-part", work.path("perdu"));
    work.write("plein/.a", "");
    work.write("fichier", "");
    for (const char* name : {"lien", "lien/", "perdu", "plein", "fichier"})
        EXPECT_EQ(run({"new", name}).code, 2) << name;
    EXPECT_EQ(run("new").code, 2);
    EXPECT_TRUE(work.files("vide").empty());
    EXPECT_THAT(work.files("plein"), SizeIs(1));
    EXPECT_FALSE(work.has("nulle-part"));
}

TEST_F(NewCourse, takesAwayWhatItCouldNotFinish) {
    fs::create_directory(work.path("full"));
    const std::string script = "ulimit -f 1; '" COURS_PROGRAM "' new full/cours";
    QProcess shell;
    shell.setWorkingDirectory(QString::fromStdString(work.path().string()));
    // A limit of 512 bytes a file stands for a disc that is full; its signal must not end us.
    shell.start("/bin/sh", {"-c", QString::fromStdString("trap '' XFSZ; " + script)});
    ASSERT_TRUE(shell.waitForFinished(60'000));
    EXPECT_EQ(shell.exitCode(), 74) << shell.readAllStandardError().toStdString();
    EXPECT_FALSE(work.has("full/cours"));
}

TEST_F(NewCourse, takesPagesAtTheEndOfTheReadingOrder) {
    ASSERT_EQ(run("new c").code, 0);
    replace("c/pages/003-concentration.md", "suite = false", "suite  =  false # la fin");
    const Outcome added =
        run({"new", "c", "--page", "La dilution : *50 %* d’eau", "--page", "45", "--page", "É"});
    EXPECT_EQ(added.code, 0) << added.err;
    EXPECT_EQ(added.out, "c/pages/004-la-dilution-50-d-eau.md\nc/pages/045-page-45.md\n"
                         "c/pages/046-e.md\n");
    expectSound("c");
    EXPECT_THAT(numbers("Numeropage"), testing::ElementsAre("1", "2", "3", "4", "45", "46"));
    EXPECT_THAT(numbers("Index"), testing::ElementsAre("1", "2", "3", "4", "5", "6"));
    EXPECT_THAT(numbers("sommaire"), testing::Each("1"));
    EXPECT_THAT(work.read("c/pages/003-concentration.md"),
                HasSubstr("\nsuite  =  true # la fin\nimprimable"));
    EXPECT_THAT(work.read("c/pages/004-la-dilution-50-d-eau.md"),
                HasSubstr("\n# La dilution : \\*50"));
}

TEST_F(NewCourse, keepsTheFirstRecordFirst) {
    work.write("c/pages/accueil.page", "+++\r\nNumeropage = 7\r\nIndex = 3\r\n+++\r\nA¶\r\n");
    EXPECT_EQ(run({"new", "c", "--page", "Un"}).out, "c/pages/accueil_008-un.md\n");
    ASSERT_EQ(run("build c -o out").code, 0);
    EXPECT_THAT(numbers("Numeropage"), testing::ElementsAre("7", "8"));
    EXPECT_EQ(work.read("c/pages/accueil.page"),
              "+++\r\nNumeropage = 7\r\nIndex = 3\r\nsuite = true\r\n+++\r\nA¶\r\n");
}

TEST_F(NewCourse, takesQuestionsAndCountsThem) {
    ASSERT_EQ(run("new c").code, 0);
    const Outcome added = run("new c --question 1 --question 2 --question 2");
    EXPECT_EQ(added.code, 0) << added.err;
    expectSound("c");
    EXPECT_THAT(numbers("REFERENCE"),
                testing::ElementsAre("101", "102", "103", "104", "105", "201", "202"));
    EXPECT_THAT(numbers("Nbquest"), testing::ElementsAre("5", "2"));
}

TEST_F(NewCourse, addsNothingWhereNumbersAreNotKnown) {
    ASSERT_EQ(run("new c").code, 0);
    const auto before = work.files("c");
    const struct {
        const char* option;
        const char* value;
    } wrong[] = {{"--page", "2"},
                 {"--page", "0"},
                 {"--page", "1000"},
                 {"--question", "un"},
                 {"--question", "0"}};
    for (const auto& [option, value] : wrong)
        EXPECT_EQ(run({"new", "c", option, value}).code, 1) << option << value;
    EXPECT_EQ(run("new nulle-part --page Un").code, 2);
    EXPECT_EQ(run("new . --page Un").code, 1); // no sources
    replace("c/pages/002-masse-volumique.md", "Numeropage = 2", "Numeropage = deux");
    EXPECT_EQ(run("new c --page Un").code, 1);
    EXPECT_EQ(work.files("c"), before);
}

} // namespace
