#include "coursetool/build.h"
#include "coursetool/workspace.h"

#include <gmock/gmock.h>

#include <fstream>

namespace {

using testing::HasSubstr;

struct Row {
    const char* name;
    const char* file;
    std::string text;
    std::string at;   ///< line and column
    const char* word; ///< what the sentence says to do or names
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

std::string page(const std::string& fields) {
    return "+++\nNumeropage = 7\n" + fields + "\n+++\nTexte\n";
}

std::string repeated(std::string_view words, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += words;
    return all;
}

class Fault : public testing::TestWithParam<Row> {};

TEST_P(Fault, isNamedWithItsPlaceAndARemedy) {
    const Workspace work;
    work.write("src/pages/0.page", "+++\nNumeropage = 1\n+++\n");
    work.write("src/exercises/t/chapter.toml", "Chapitre = 1\n");
    work.write(std::string("src/") + GetParam().file, GetParam().text);
    coursetool::Report report;
    EXPECT_FALSE(coursetool::build(work.path("src"), work.path("out"), report));
    const std::string place = work.path("src").string() + "/" + GetParam().file + GetParam().at;
    EXPECT_THAT(textOf(report), HasSubstr(place + ": "));
    EXPECT_THAT(textOf(report), HasSubstr(GetParam().word));
    EXPECT_EQ(report.faultCount(), 1u) << textOf(report);
    EXPECT_FALSE(work.has("out"));
}

const char kPage[] = "pages/1.page";
const char kQuestion[] = "exercises/t/1.question";
const char kChapter[] = "exercises/t/chapter.toml";

INSTANTIATE_TEST_SUITE_P(
    Fields, Fault,
    testing::Values(
        Row{"unknown", kPage, page("couleur = 3"), ":3:1", "les champs sont Numeropage, Index"},
        Row{"letterCase", kPage, page("Titre = \"x\""), ":3:1", "écrire « titre »"},
        Row{"textForNumber", kPage, page("Index = \"7\""), ":3:9",
            "écrire par exemple « Index = 7 »"},
        Row{"fraction", kPage, page("Index = 7.5"), ":3:9", "un nombre entier"},
        Row{"flag", kPage, page("suite  = 0"), ":3:10", "« suite = false »"},
        Row{"numberForText", kPage, page("titre = 12"), ":3:9", "« titre = \"12\" »"},
        Row{"date", kPage, page("titre = 2020-01-01"), ":3:9", "un texte entre guillemets"},
        Row{"moment", kPage, page("titre = 2020-01-01 10:20:30"), ":3:9",
            "un texte entre guillemets"},
        Row{"tooLong", kPage, page("titre = \"" + std::string(256, 'a') + '"'), ":3:9",
            "255 au plus"},
        Row{"beyondLong", kPage, page("Index = 2147483648"), ":3:9", "à 2147483647"},
        Row{"beyondInteger", kChapter, "Chapitre = 40000\n", ":1:12", "à 32767"},
        Row{"missingNumber", kPage, "+++\n+++\n", ":1:1", "« Numeropage = 12 »"},
        Row{"missingReference", kQuestion, "+++\ntype = 1\n+++\n", ":1:1", "« REFERENCE = 307 »"},
        Row{"duplicate", kPage, "+++\nIndex = 1\nNumeropage = 1\n+++\n", ":3:14",
            "0.page, ligne 2"},
        Row{"solutionWithoutQuotes", kQuestion, "+++\nREFERENCE = 1\nsolution = 10010\n+++\n",
            ":3:12", "« solution = \"10010\" »"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Syntax, Fault,
    testing::Values(
        Row{"noQuotes", kPage, page("titre = La lumière"), ":3:9", "entre guillemets"},
        Row{"givenTwice", kPage, page("Numeropage = 8"), ":3:14", "déjà donné"},
        Row{"noFields", kPage, "Texte\n", ":1:1", "d’abord une ligne « +++ »"},
        Row{"emptyFile", kPage, "", ":1:1", "d’abord une ligne « +++ »"},
        Row{"notClosed", kPage, "+++\nNumeropage = 7\nTexte\n", ":1:1", "après le dernier"},
        Row{"thirdPart", kQuestion, "+++\nREFERENCE = 1\n+++\na\n+++\nb\n+++\nc\n", ":7:1",
            "« \\+++ »"},
        Row{"loneCarriageReturn", kPage, page("titre = \"x\"") + "é\rb\n", ":6:2",
            "retour chariot isolé"},
        Row{"latin1", kPage, page("titre = \"x\"") + "ligne\nun \xE9l\xE8ve\n", ":7:4",
            "enregistrer le fichier en UTF-8"},
        Row{"surrogate", kPage, page("titre = \"x\"") + "\xED\xA0\x80\n", ":6:1", "UTF-8"},
        Row{"overlong", kPage, page("titre = \"x\"") + "a\xE0\x80\xAF\n", ":6:2", "UTF-8"},
        // What the TOML library does not stand is met before it.
        Row{"accentedKey", kPage, page("numéro = 3"), ":3:1", "« numéro = 3 » ne se lit pas"},
        Row{"dottedKey", kPage, page("a" + repeated(".a", 250'000) + " = 1"), ":3:1",
            "… » ne se lit pas"},
        Row{"dottedKeyInATable", kPage, page("a = {b" + repeated(".b", 250'000) + " = 1}"), ":3:5",
            "ne se lit pas"},
        Row{"nestedArrays", kPage, page("Index = " + repeated("[", 250'000)), ":3:9",
            "… » ne se lit pas"},
        Row{"tableOfArrays", kPage, page("[[titre]]"), ":3:1", "« [[titre]] »"},
        Row{"underscore", kPage, page("titre = _1"), ":3:9", "« titre = _1 »"},
        Row{"digitBehindADate", kPage, page("titre = 1979-05-27 1"), ":3:9", "ne se lit pas"},
        Row{"commentBehindThat", kPage, page("titre = 1979-05-27 1# a"), ":3:9", "ne se lit pas"},
        Row{"underscoreInThat", kPage, page("titre = 19_79-05-27 1\t"), ":3:9", "ne se lit pas"},
        Row{"controlCharacter", kPage, page("titre = \x01"), ":3:9", "ne se lit pas"},
        Row{"behindAText", kPage, page("titre = \"x\" y.z"), ":3:9", "ne se lit pas"},
        Row{"afterALongText", kPage, page("titre = \"\"\"a\n= b \\\"\"\" c\n\"\"\"\né = 1"), ":6:1",
            "« é = 1 »"}),
    [](const auto& row) { return row.param.name; });

TEST(Faults, areAllReportedInOneRun) {
    const Workspace work;
    work.write("src/pages/1.page", "+++\nNumeropage = x\nIndex = y\ntitre = 3\nrien = 1\n+++\n");
    work.write("src/pages/2.page", "+++\nNumeropage = 2\n+++\n\xFF\n\xFE\n");
    work.write("src/exercises/t/1.question", "+++\n+++\n");
    coursetool::Report report;
    EXPECT_FALSE(coursetool::build(work.path("src"), work.path("out"), report));
    const std::string text = textOf(report);
    for (const char* place : {"1.page:2:", "1.page:3:", "1.page:4:9", "1.page:5:1", "2.page:4:1",
                              "2.page:5:1", "chapter.toml: ", "1.question:1:1"})
        EXPECT_THAT(text, HasSubstr(place));
    EXPECT_EQ(report.faultCount(), 8u) << text;
}

TEST(Warnings, tellOfPagesThatNoCodeReaches) {
    const Workspace work;
    work.write("src/pages/1.page", "+++\nNumeropage = 1000\n+++\n");
    work.write("src/pages/2.page", "+++\nNumeropage = -3\n+++\n");
    work.write("src/pages/3.txt", "x");
    coursetool::Report report;
    EXPECT_TRUE(coursetool::build(work.path("src"), work.path("out"), report));
    EXPECT_THAT(textOf(report), HasSubstr("1.page:2:14: avertissement : "));
    EXPECT_THAT(textOf(report), HasSubstr("2.page:2:14: avertissement : "));
    EXPECT_THAT(textOf(report), HasSubstr("3.txt: avertissement : laissé de côté"));
}

TEST(Warnings, tellOfPagesThatTheIndexDoesNotHold) {
    const Workspace work;
    constexpr int kFirstLost = 32768; // position, from 0
    std::filesystem::create_directories(work.path("src/pages"));
    for (int i = 0; i <= kFirstLost + 1; ++i) {
        const std::string number = std::to_string(100000 + i);
        std::ofstream(work.path("src/pages/" + number + ".page"))
            << "+++\nNumeropage = " << number << "\n+++";
    }
    coursetool::Report report;
    EXPECT_TRUE(coursetool::build(work.path("src"), work.path("out"), report));
    EXPECT_THAT(textOf(report), HasSubstr("/132768.page:2:14: avertissement : au-delà de 32 768"));
    // Each of the numbers is beyond 999 as well, which is told of some and summed up.
    EXPECT_EQ(report.lines().size(), 22u);
    EXPECT_THAT(report.lines().back(), HasSubstr("et 32750 autres numéros"));
}

} // namespace
