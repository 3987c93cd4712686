#include "coursetool/build.h"
#include "coursetool/extract.h"
#include "coursetool/workspace.h"

#include <gmock/gmock.h>

namespace {

using jet::ColumnType;
using testing::HasSubstr;
using Texts = std::vector<const char16_t*>;

const std::vector<jet::Column> kCours = {
    {u"Numeropage", ColumnType::Long}, {u"Index", ColumnType::Long},
    {u"titre", ColumnType::Text, 255}, {u"precedent", ColumnType::Boolean},
    {u"suite", ColumnType::Boolean},   {u"imprimable", ColumnType::Boolean},
    {u"moteur", ColumnType::Boolean},  {u"debutimp", ColumnType::Long},
    {u"finimp", ColumnType::Long},     {u"sommaire", ColumnType::Long},
    {u"fpc", ColumnType::Memo},
};
const std::vector<jet::Column> kDescription = {{u"Chapitre", ColumnType::Integer},
                                               {u"Titre", ColumnType::Text, 255},
                                               {u"Nbquest", ColumnType::Integer}};
const std::vector<jet::Column> kContenu = {{u"REFERENCE", ColumnType::Long},
                                           {u"type", ColumnType::Integer},
                                           {u"solution", ColumnType::Text, 255},
                                           {u"question", ColumnType::Memo},
                                           {u"SiFaux", ColumnType::Memo}};

std::vector<jet::Value> page(std::int32_t number, jet::Value title, jet::Value source) {
    return {number,          jet::Value(), std::move(title), false, true, false, true, -number,
            std::int32_t{0}, jet::Value(), std::move(source)};
}

struct RoundTrip : testing::Test {
    Workspace work;
    coursetool::Report report;

    RoundTrip() { work.write("old/couv1.jpg", "x"); }

    void writeCourse(const std::vector<std::vector<jet::Value>>& pages) {
        writeDatabase(work.path("old/Zekx.mdb"), {{u"cours", kCours, pages}});
    }
    void writeExercises(const std::vector<std::vector<jet::Value>>& tests,
                        const std::vector<std::vector<jet::Value>>& questions) {
        writeDatabase(work.path("old/qekx.mdb"),
                      {{u"DESCRIPTION", kDescription, tests}, {u"Contenu", kContenu, questions}});
    }
    std::string extract() {
        coursetool::extract(work.path("old"), work.path("src"), report);
        return textOf(report);
    }
    void expectBuilds() {
        coursetool::Report faults;
        EXPECT_TRUE(coursetool::build(work.path("src"), work.path("new"), faults))
            << textOf(faults);
    }
    void expectSame(const std::string& database, const std::string& table) {
        EXPECT_EQ(work.rows("new/" + database, table), work.rows("old/" + database, table));
    }
};

TEST_F(RoundTrip, keepsEveryFieldOfPages) {
    std::u16string longest(255, u'\x2028');
    std::vector<std::vector<jet::Value>> pages = {
        page(2000000000, jet::Value(), jet::Value()),
        page(1, u"", u""),
        page(-7, std::move(longest), u"¶\r\n"),
    };
    // Texts that a careless source would change: fences, backslashes, marks, controls.
    const Texts texts = {u"+++",
                         u"+++\r\n",
                         u"a\r\n+++\r\nb",
                         u"\\+++\r\n\\\\+++\r\n+++ \r\n",
                         u"\uFEFFtexte",
                         u"\r\n\r\n\r\n",
                         u"fin sans ligne",
                         u"\"'\\ \t\x01\x1F\x7F\x80\x92\x9F",
                         u"\U0001D11E \u2028\u2029\u0085\uFFFF",
                         u"# = [x]\r\nNumeropage = 3\r\n\"\"\""};
    std::int32_t number = 100;
    for (const char16_t* text : texts) {
        pages.push_back(page(number, text, text));
        ++number;
    }
    pages.push_back(page(number, std::u16string(u"a\0b", 3), std::u16string(u"a\0b\r\n", 5)));
    writeCourse(pages);
    EXPECT_EQ(extract(), "");
    expectBuilds();
    expectSame("Zekx.mdb", "cours");
    EXPECT_EQ(work.read("new/couv1.jpg"), "x");
}

TEST_F(RoundTrip, keepsTheOrderOfRecords) {
    std::vector<std::vector<jet::Value>> pages;
    for (std::int32_t i = 0; i < 25; ++i)
        pages.push_back(page((i * 7) % 25 * 100, jet::Value(), u"x"));
    writeCourse(pages);
    const auto test = [](std::int16_t chapter) {
        return std::vector<jet::Value>{chapter, u"T", std::int16_t{2}};
    };
    const auto question = [](std::int32_t reference) {
        return std::vector<jet::Value>{reference, std::int16_t{1}, u"01001", u"Q\r\n", u"F"};
    };
    writeExercises({test(10), test(9), test(-2)}, {question(901), question(1002), question(901 + 1),
                                                   question(1001), question(7777), question(-201)});
    EXPECT_EQ(extract(), "");
    expectBuilds();
    expectSame("Zekx.mdb", "cours");
    expectSame("qekx.mdb", "DESCRIPTION");
    expectSame("qekx.mdb", "Contenu");
}

TEST_F(RoundTrip, keepsQuestionsWithAndWithoutTheirParts) {
    writeCourse({page(1, u"x", u"x")});
    const jet::Value none;
    std::vector<std::vector<jet::Value>> questions;
    const std::pair<jet::Value, jet::Value> parts[] = {
        {none, none},    {u"", none},          {u"", u""},           {u"Q", none},
        {u"Q\r\n", u""}, {u"Q\r\n", u"F\r\n"}, {u"+++\r\n", u"+++"}, {u"\r\n", u"\\+++\r\n+++"}};
    for (const auto& [text, comment] : parts)
        questions.push_back(
            {static_cast<std::int32_t>(101 + questions.size()), none, none, text, comment});
    writeExercises({{std::int16_t{1}, none, none}}, questions);
    EXPECT_EQ(extract(), "");
    expectBuilds();
    expectSame("qekx.mdb", "Contenu");
}

TEST_F(RoundTrip, takesOtherColumnTypesAndMissingColumns) {
    writeDatabase(work.path("old/ZEKX.mdb"), {{u"Cours",
                                               {{u"NUMEROPAGE", ColumnType::Byte},
                                                {u"Index", ColumnType::Double},
                                                {u"titre", ColumnType::Memo},
                                                {u"fpc", ColumnType::Text, 50}},
                                               {{std::uint8_t{7}, 12.0, u"T", u"a\r\n"}}}});
    EXPECT_EQ(extract(), "");
    expectBuilds();
    EXPECT_EQ(work.rows("new/Zekx.mdb", "cours").front(),
              R"({"Numeropage":7,"Index":12,"titre":"T","precedent":false,"suite":false,)"
              R"("imprimable":false,"moteur":false,"debutimp":null,"finimp":null,)"
              R"("sommaire":null,"fpc":"a\r\n"})");
}

TEST_F(RoundTrip, namesWhatSourcesCannotCarry) {
    std::vector<jet::Column> columns = kCours;
    columns[1] = {u"Index", ColumnType::Text, 20};
    columns[3] = {u"precedent", ColumnType::Integer};
    columns[7] = {u"debutimp", ColumnType::Double};
    columns.push_back({u"auteur", ColumnType::Text, 20});
    const jet::Value none;
    const auto row = [&](jet::Value number, jet::Value index, double first, jet::Value source) {
        return std::vector<jet::Value>{number, index, none, std::int16_t{-1},  false, false, false,
                                       first,  none,  none, std::move(source), u"moi"};
    };
    writeDatabase(work.path("old/Zekx.mdb"),
                  {{u"cours",
                    columns,
                    {row(std::int32_t{1}, u"3", 1, u"seul\rretour"), row(none, none, 1, u"a\nb"),
                     row(std::int32_t{1}, u"x3", 1.5, std::u16string{u'a', 0xD800})}},
                   {u"notes", {{u"n", ColumnType::Long}}, {}}});
    writeExercises({{std::int16_t{1}, none, none}},
                   {{std::int32_t{101}, none, none, u"sans fin", u"F"},
                    {std::int32_t{102}, none, none, none, u"F"}});
    const std::string text = extract();
    for (const char* words :
         {"table « notes » non reprise", "champ « auteur » non repris",
          "champ « Index » de type Text", "champ « precedent » de type Integer",
          "enregistrement 1: champ « fpc » : un retour chariot",
          "enregistrement 2: champ « fpc » : un retour chariot",
          "enregistrement 2: champ « Numeropage » : il manque",
          "enregistrement 3: le numéro 1 est en double",
          "enregistrement 3: champ « Index » : le texte \"x3\"",
          "enregistrement 3: champ « debutimp » : le nombre 1.5",
          "enregistrement 3: champ « fpc » : un code qui n’est pas un caractère",
          "enregistrement 1: champ « question » : sans fin de ligne",
          "enregistrement 2: champ « question » : la question absente"})
        EXPECT_THAT(text, HasSubstr(words));
    EXPECT_EQ(report.faultCount(), 13u) << text;
    // What can be carried is there all the same.
    EXPECT_EQ(work.read("src/pages/1-1.page"),
              "+++\nNumeropage = 1\nIndex = 3\nprecedent = true\nsuite = false\n"
              "imprimable = false\nmoteur = false\ndebutimp = 1\n+++\nseul\nretour");
    EXPECT_EQ(work.read("src/exercises/1-1/1-101.question"),
              "+++\nREFERENCE = 101\n+++\nsans fin\n+++\nF");
}

TEST_F(RoundTrip, extractsWhatADamagedDatabaseStillHolds) {
    std::vector<std::vector<jet::Value>> pages;
    for (std::int32_t i = 1; i <= 40; ++i)
        pages.push_back(page(i, u"t", std::u16string(1500, u'x')));
    writeCourse(pages);
    std::string bytes = work.read("old/Zekx.mdb");
    work.write("old/Zekx.mdb", bytes.substr(0, bytes.size() - 20 * 4096));
    EXPECT_NE(extract(), "");
    EXPECT_FALSE(work.files("src/pages").empty());
}

TEST_F(RoundTrip, takesNoFileAlongThatALinkLeadsTo) {
    work.write("secret", "mine");
    writeCourse({page(1, u"x", u"x")});
    std::filesystem::create_symlink("couv1.jpg", work.path("old/same.jpg"));
    std::filesystem::create_symlink(work.path("secret"), work.path("old/taken.jpg"));
    EXPECT_THAT(extract(), HasSubstr("taken.jpg: ce lien mène hors du dossier"));
    EXPECT_EQ(report.faultCount(), 1u);
    EXPECT_EQ(work.read("src/files/same.jpg"), "x");
    EXPECT_FALSE(work.has("src/files/taken.jpg"));
}

/// In sources they could steer the editor's terminal; a no-break space is a letter like others.
TEST_F(RoundTrip, writesControlCharactersAsEscapes) {
    writeCourse({page(1, u"\u0001\u007F\u0080\u009F\u00A0é", u"x")});
    EXPECT_EQ(extract(), "");
    EXPECT_THAT(work.read("src/pages/1-1.page"),
                HasSubstr("titre = \"\\u0001\\u007f\\u0080\\u009f\u00A0é\"\n"));
    expectBuilds();
    expectSame("Zekx.mdb", "cours");
}

TEST_F(RoundTrip, replacesOnlyWhatHasTheNameOfASourceAndFollowsNoLink) {
    writeCourse({page(1, u"x", u"new\r\n")});
    writeExercises({{std::int16_t{1}, u"T", std::int16_t{2}}},
                   {{std::int32_t{101}, std::int16_t{1}, u"1", u"Q", jet::Value()}});
    work.write("src/pages/1-1.page", "old");
    work.write("src/pages/mine.page", "mine");
    work.write("src/notes.txt", "mine");
    work.write("src/files/couv1.jpg", "old");
    work.write("elsewhere/x", "mine");
    std::filesystem::create_directory_symlink(work.path("elsewhere"), work.path("src/exercises"));
    const std::string text = extract();
    EXPECT_THAT(work.read("src/pages/1-1.page"), HasSubstr("new\n"));
    EXPECT_EQ(work.read("src/files/couv1.jpg"), "x");
    EXPECT_EQ(work.read("src/notes.txt"), "mine");
    EXPECT_THAT(text, HasSubstr("src/pages/mine.page: avertissement : n’est pas du cours repris"));
    EXPECT_THAT(text, HasSubstr("un lien mène ailleurs : rien n’y est écrit"));
    EXPECT_THAT(work.files("elsewhere"), testing::ElementsAre("x"));
    EXPECT_TRUE(report.hasFailures());
}

TEST_F(RoundTrip, needsACourse) {
    EXPECT_THAT(extract(), HasSubstr("Zekx.mdb manque"));
    EXPECT_FALSE(work.has("src"));
}

} // namespace
