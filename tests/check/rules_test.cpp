// Every rule: a source with the fault, told once and in its place, and one that nearly has it.

#include "check/checked.h"

#include <gmock/gmock.h>

#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a finding says of `wrong`, a page's source that starts on line 6.
struct SourceRow {
    const char* code;
    std::string wrong;
    int line; ///< of the source, from 1
    std::string right;
};

void PrintTo(const SourceRow& row, std::ostream* out) {
    *out << row.code << ": " << row.wrong;
}

std::string repeated(std::string_view words, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += words;
    return all;
}

const std::string kCell = "##TAB010200 1\nA¶\n";
const std::string kMenu = "##LIERFME\n##ADMENun#PAG001\n";

const SourceRow kSourceRows[] = {
    {"L101", "##SJ12\nA¶\n", 1, "##SI12\nA¶\n"},
    {"L101", "##si12\nA¶\n", 1, "##STAY\nA¶\n"},
    {"L101", "A¶\n##\n", 2, "A¶\n#\n¶\n"},
    {"L102", "##CHAPEAU \nn¶\n", 1, "##CHAPEAU\nn¶\n"},
    {"L102", "##K1041\nn¶\n", 1, "##K104\nn¶\n"},
    {"L103", "##BOL1 gras\nA¶\n", 1, "##BOL1 \nA¶\n"},
    {"L103", kCell + "##FINTAB04\nA¶\n", 3, kCell + "##FINTAC04\nA¶\n"},
    {"L104", "##SI9\nA¶\n", 1, "##SI 9\nA¶\n"},
    {"L104", "##C5\nA¶\n", 1, "##C005\nA¶\n"},
    {"L104", "##PIX40\nA¶\n", 1, "##PIX040\nA¶\n"},
    {"L104", "##INTER1.5\nA¶\n", 1, "##INTER1.50\nA¶\n"},
    {"L104", "##TAB10200 1\nA¶\n##FINTAB\n", 1, kCell + "##FINTAB\n"},
    {"L104", "##IHDEFdessin.svg60050\nA¶\n", 1, "##IHDEFdessin.svg060050\nA¶\n"},
    {"L105", "##SI120\nA¶\n", 1, "##SI012\nA¶\n"},
    {"L105", "A\n##POX1010\nA¶\n", 2, "A\n##POX0100\nA¶\n"},
    {"L106", "##DECLIG1,5\nA¶\n", 1, "##DECLIG1.5\nA¶\n##DECLIG-0.5\nA¶\n"},
    {"L106", "##INTER1,50\nA¶\n", 1, "##INTER.50 \nA¶\n"},
    {"L106", "##SQD\n2\n##SQFdeux\nA¶\n", 3, "##SQD\n2\n##SQF2\nA¶\n"},
    {"L107", "##INTER0.00\nA¶\n", 1, "##INTER0.01\nA¶\n"},
    {"L107", "##SQD\n2\n##SQF\nA¶\n", 3, "##SQD\n2\n##SQF.5\nA¶\n"},
    {"L107", "A\n##SI00\nB¶\n", 2, "A\n##SI01\nB¶\n"},
    {"L108", "##C015\nA¶\n", 1, "##C010\nA¶\n"},
    {"L108", kCell + "##TCH16\n##FINTAB\n", 3, kCell + "##TCH15\n##FINTAB\n"},
    {"L109", "##CENTRE\nA¶\n", 1, "##CHAPEAU\nA¶\n"},
    {"L109", "##INDICE 2\n¶\n", 1, "##INDNa\n¶\n"},
    {"L110", "##LIERTla suite\n¶\n", 1, "##LIERTla suite#PAG001\n¶\n"},
    {"L110", "¶\n##FRAC1/2\n¶\n", 2, "¶\n##FRAC1#2\n¶\n"},
    {"L111", "##IND\n¶\n", 1, "##IND2\n¶\n"},
    {"L111", "##LIERT#PAG001\nA¶\n", 1, "##LIERTA#PAG001\n¶\n"},
    {"L112", "##POLY423\n¶\n", 1, "##POLY42\n¶\n"},
    {"L112", "##RELIEF2\nA¶\n", 1, "##RELIEF0\nA¶\n"},
    {"L112", "##RELIEF216\n##RELIEF0\nA¶\n", 1, "##RELIEF2 07\nA¶\n"},
    {"L113", "##OBJPRINCIPALE\nA¶\n", 1, "##OBJPRINCIPAL\nA¶\n"},
    {"L114", " ##SI12\n¶\n", 1, " # SI12\n¶\n"},
    {"L114", "#BOL1\n¶\n", 1, "#BOL¶\n"},
    {"L115", "##EXOOP\nA¶\n", 1, "##EXP2\nA¶\n"},
    {"S201", "A¶\nB¶", 2, "A¶\nB¶\n"},
    {"S202", "##DECABAS\n##OBJPRINCIPAL\nA¶\n", 1, "##DECABAS\n##BOL1\nA¶\n"},
    {"S202", "##DECABAS\n##DECAHA2\nA¶\n", 1, "##DECABADEF\n##DECAHA2\nA¶\n"},
    {"S202", "A\n##DECAHAU\n¶\n", 2, "A\n##DECAHAU\n2¶\n"},
    {"S203", kCell + "B¶\n", 1, kCell + "##FTABRET\nB¶\n"},
    {"S204", "##FINTAB\nA¶\n", 1, kCell + "##FINITAB\nA¶\n"},
    {"S205", "##TAB010200 2\nA¶\n##FINTAB\n", 1, kCell + "##FINTAB\n"},
    {"S205", kCell + "##TAB200400 1\nB¶\n##FINTAB\n", 3, kCell + "##TAB200400 3\nB¶\n##FINTAB\n"},
    {"S206", "##TAB200010 1\n##FINTAB\nA¶\n", 1, "##TAB010200 1\n##FINTAB\nA¶\n"},
    {"S206", "##OBJILLUS\n##TAB010200 1\nA¶\n##FINTAB\n", 2,
     "##OBJILLUS\n##TAB010150 1\nA¶\n##FINTAB\n"},
    {"S207", "##NUMERATEUR\na\n##FINFRAC\n¶\n", 3,
     "##NUMERATEUR\na\n##DENOMINATEUR\nb\n##FINFRAC\n¶\n"},
    {"S207", "##NUMERATEUR\na\n##DENOMINATEUR\nb¶\n", 3,
     "##NUMERATEUR\na\n##DENOMINATEUR\nb\n##FINFRAC\n¶\n"},
    {"S208", "##SQD\n2¶\n", 1, "##SQD\n2\n##SQF1\n¶\n"},
    {"S208", "2\n##SQF1\n¶\n", 2, "##SQD\n2\n##SQF1\n¶\n"},
    {"S209", "##LIER1Les lentilles\nA¶\n", 1, "##LIER1Les lentilles\n##LIERTici#PAG001\n¶\n¶\n"},
    {"R301", repeated("large ", 40) + "¶\n", 1,
     repeated("large ", 17) + repeated(" ", 300) + "¶\n"},
    {"R301", "##OBJILLUS\n" + repeated("large ", 7) + "¶\n", 2,
     "##OBJILLUS\n" + repeated("large ", 4) + "¶\n"},
    {"R301", "##OBJTIT\n" + repeated("large ", 40) + "\n##OBJPRINCIPAL\nA¶\n", 2,
     "##OBJTIT\nA\n##OBJPRINCIPAL\nA¶\n"},
    {"R301", "##POX560\n##LIERTla réfraction#PAG001\n¶\n", 2, "##LIERTla réfraction#PAG001\n¶\n"},
    {"R301", "##PIX-20\nA¶\n", 2, "##PIX020\n##PIX-20\nA¶\n"},
    {"R302", "##POX570\n##IMAdessin.svg\n##POX000\nA¶\n", 2,
     "##POX560\n##IMAdessin.svg\n##POX000\nA¶\n"},
    {"R303", "##TAB010060 1\nTrop de mots¶\n##FINTAB\n", 2,
     "##TAB010160 1\nTrop de mots¶\n##FINTAB\n"},
    {"R304", "A¶\nB\n", 2, "A¶\nB¶\n"},
    {"R305", "##C007\nA¶\n", 2, "##C008\nA¶\n"},
    {"R305", "##C011\n" + kCell + "##FINTAC06\n", 3, "##C005\n" + kCell + "##FINTAC06\n"},
    {"R306", "##SQD\n2\n##SQF9999\n¶\n", 3, "##SQD\n2\n##SQF9\n¶\n"},
    {"N401", "##LIERTlà#PAG002\n¶\n", 1, "##LIERTlà#PAG001\n¶\n"},
    {"N402", "##LIERTlà#pag001\n¶\n", 1, "##LIERTlà#BDC\n¶\n"},
    {"N402", "##LIERILKPAG1\n¶\n¶\n", 1, "##LIERILKPAG001\n¶\n¶\n"},
    {"N403", "##LIERTtest#EXO002\n¶\n", 1, "##LIERTtest#EXO001\n¶\n"},
    {"N404", "##LIERTici#EXE080\n¶\n", 1, "##LIERTici#EXE070\n¶\n"},
    {"N405", repeated("##LIERT.#PAG001\n", 101) + "¶\n", 101,
     repeated("##LIERT.#PAG001\n", 100) + "¶\n"},
    {"N406", "##LIERFME\n¶\n¶\n", 1, kMenu + "¶\n¶\n"},
    {"N406", "##ADMENun#PAG001\n¶\n", 1, kMenu + "¶\n¶\n"},
    {"N406", kMenu + repeated("##ADMENun#PAG001\n", 10) + "¶\n¶\n", 12,
     kMenu + repeated("##ADMENun#PAG001\n", 9) + "¶\n¶\n"},
    {"F601", "##IXAdessein.svg\nA¶\n", 1, "##IXA\\autre\\dessin.svg\nA¶\n"},
    {"F602", "##VIDEOfilms.avi\nA¶\n", 1, "##VIDEOMENU01\nA¶\n"},
    {"F603", "##IXADessin.svg\nA¶\n", 1, "##IXAdessin.svg\nA¶\n"},
    {"F603", "##VIDEOFILM.AVI\nA¶\n", 1, "##VIDEOfilm.avi\nA¶\n"},
    {"F604", "##IJAZ9\nA¶\n¶\n", 1, "##IJALK\nA¶\n¶\n"},
    {"F604", "##LIERXZ9aide#PAG001\nA¶\n¶\n", 1, "##LIERXlkaide#PAG001\nA¶\n¶\n"},
};

class SourceRule : public testing::TestWithParam<SourceRow> {};

TEST_P(SourceRule, tellsTheFaultInItsPlaceAndNothingElse) {
    const CheckedCourse course;
    course.setBody(GetParam().wrong);
    EXPECT_THAT(course.told(), ElementsAre(std::string(GetParam().code) +
                                           " pages/1.page:" + std::to_string(5 + GetParam().line)));
    course.setBody(GetParam().right);
    EXPECT_THAT(course.told(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Rows, SourceRule, testing::ValuesIn(kSourceRows), [](const auto& row) {
    return row.param.code + std::string("_") + std::to_string(row.index);
});

/// Files that spoil the small course, and what is told of it; files that nearly do.
struct CourseRow {
    const char* code;
    std::map<std::string, std::string> wrong;
    std::vector<std::string> told; ///< without the code
    std::map<std::string, std::string> right;
};

void PrintTo(const CourseRow& row, std::ostream* out) {
    *out << row.code;
}

const char kFirst[] = "pages/1.page";
const char kSecond[] = "pages/2.page";
const char kChapter[] = "exercises/t/chapter.toml";
const char kQuestion[] = "exercises/t/1.question";

std::string first(const std::string& fields, const std::string& body = "A¶\n") {
    return CheckedCourse::page("Numeropage = 1\nIndex = 1\n" + fields, body);
}
/// Page 2, to which page 1 leads.
std::string second(const std::string& fields) {
    return CheckedCourse::page("Numeropage = 2\n" + fields, "A¶\n");
}
const std::string kLinked = first("moteur = true", "##LIERTlà#PAG002\n¶\n");

std::string choice(const std::string& fields, const std::string& body) {
    return CheckedCourse::question("REFERENCE = 101\n" + fields, body);
}
std::string typed(const std::string& solution) {
    return choice("type = 3\nsolution = \"" + solution + '"', "##EXOTX\n¶\n");
}
std::string options(const std::string& solution) {
    return choice("type = 2\nsolution = \"" + solution + '"', "##EXOOP\nA¶\n##EXOOP\nB¶\n");
}

const std::string kBareDrawing =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><path d=\"M0 0h9\"/></svg>";
/// A picture of one pixel.
const std::string kDot("GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);

const CourseRow kCourseRows[] = {
    {"A001", {{kSecond, "sans champs\n"}}, {"pages/2.page:1"}, {{"pages/.2.page~", "x"}}},
    {"A002",
     {{"check.toml", "ignore = \"L999\"\n"}},
     {"check.toml:1"},
     {{"check.toml", "ignore = \"L101\"\n"}}},
    {"R307",
     {{kFirst,
       "+++\nNumeropage = 1\nIndex = 1\ntitre = \"" + repeated("large ", 40) + "\"\n+++\nA¶\n"}},
     {"pages/1.page:4"},
     {{kFirst,
       "+++\nNumeropage = 1\nIndex = 1\ntitre = \"" + repeated("large ", 12) + "\"\n+++\nA¶\n"}}},
    {"N407",
     {{kSecond, second("Index = 2")}},
     {"pages/2.page:2"},
     {{kSecond, second("Index = 2")}, {kFirst, kLinked}}},
    {"N408",
     {{kFirst, first("sommaire = 2")}},
     {"pages/1.page:4"},
     {{kFirst, first("sommaire = 1")}}},
    {"P501",
     {{kSecond, CheckedCourse::page("Numeropage = 1\nIndex = 2", "A¶\n")}},
     {"pages/2.page:2"},
     {{kSecond, second("Index = 2")}, {kFirst, kLinked}}},
    {"P502",
     {{kSecond, second("Index = 1")}, {kFirst, kLinked}},
     {"pages/2.page:3"},
     {{kSecond, second("moteur = true")}, {kFirst, kLinked}}},
    {"P503",
     {{kSecond, second("Index = 3")}, {kFirst, kLinked}},
     {"pages/2.page:3"},
     {{kSecond, second("Index = 2")}, {kFirst, kLinked}}},
    {"P504",
     {{kFirst, first("suite = true")}},
     {"pages/1.page:4"},
     {{kFirst, first("suite = true")}, {kSecond, second("Index = 2\nprecedent = true")}}},
    {"P505",
     {{kSecond, CheckedCourse::page("Numeropage = 1000\nIndex = 2\nprecedent = true", "A¶\n")},
      {kFirst, first("suite = true")}},
     {"pages/2.page:2"},
     {{kSecond, CheckedCourse::page("Numeropage = 999\nIndex = 2\nprecedent = true", "A¶\n")},
      {kFirst, first("suite = true")}}},
    {"P506",
     {{kFirst,
       CheckedCourse::page("Numeropage = 2\nIndex = 1\nsommaire = 2\nsuite = true", "A¶\n")},
      {kSecond, CheckedCourse::page("Numeropage = 3\nIndex = 2\nsommaire = 2\n"
                                    "precedent = true",
                                    "A¶\n")}},
     {"pages"},
     {{kFirst, first("sommaire = 1")}}},
    {"P507",
     {{kFirst, first("imprimable = true\ndebutimp = 2\nfinimp = 1")}},
     {"pages/1.page:5"},
     {{kFirst, first("imprimable = true\ndebutimp = 1\nfinimp = 1")}}},
    {"P508",
     {{kFirst, first("imprimable = true\ndebutimp = 1\nfinimp = 2")}},
     {"pages/1.page:5"},
     {{kFirst, first("imprimable = false\ndebutimp = 1\nfinimp = 2")}}},
    {"P509",
     {{kFirst, first("imprimable = true\ndebutimp = 1\nfinimp = 2\nsuite = true")},
      {kSecond, second("Index = 2")}},
     {"pages/1.page:5"},
     {{kFirst, first("imprimable = true\ndebutimp = 1\nfinimp = 2\nsuite = true")},
      {kSecond, second("Index = 2\nimprimable = true\ndebutimp = 1\nfinimp = 2")}}},
    {"P510",
     {{kFirst, "+++\nNumeropage = 1\nIndex = 1\ntitre = \" \"\n+++\nA¶\n"}},
     {"pages/1.page:4"},
     {{kFirst, "+++\nNumeropage = 1\nIndex = 1\ntitre = \"A\"\n+++\nA¶\n"}}},
    {"F605",
     {{kFirst, first("suite = false", "##IXAfilm.avi\nA¶\n")}},
     {"pages/1.page:7"},
     {{kFirst, first("suite = false", "##IXAdessin.svg\nA¶\n")}}},
    {"F606",
     {{kFirst, first("suite = false", "##IXAnu.svg\nA¶\n##IXAnu.svg\nA¶\n")},
      {"files/nu.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\">"
                       "<g><title>non</title></g></svg>"}},
     {"pages/1.page:7"},
     {{kFirst, first("suite = false", "##IXAdessin.svg\nA¶\n")}}},
    {"F606",
     {{kFirst, first("suite = false", "##IXAnu.svg\nA¶\n")}, {"files/nu.svg", kBareDrawing}},
     {"pages/1.page:7"},
     {{kFirst, first("suite = false", "##IXAnu.svg\nA¶\n")},
      {"files/nu.svg", kBareDrawing},
      {"files/descriptions.txt", "NU.svg : Rien\n"}}},
    {"F607",
     {{kFirst, first("suite = false", "##IXAp.gif\nA¶\n")}, {"files/p.gif", kDot}},
     {"pages/1.page:7"},
     {{kFirst, first("suite = false", "##IXAp.gif\nA¶\n")},
      {"files/p.gif", kDot},
      {"files/descriptions.txt", "# Les photos\np.gif : Un point\n"}}},
    {"Q701",
     {{kQuestion, choice("type = 4\nsolution = \"10000\"", "A¶\n")}},
     {"exercises/t/1.question:3"},
     {{kQuestion, options("10000")}}},
    {"Q702",
     {{kQuestion, choice("type = 1\nsolution = \"10000\"", "A¶\n")}},
     {"exercises/t/1.question:3"},
     {{kQuestion, choice("type = 1\nsolution = \"10000\"", "##EXOCK\nA¶\n")}}},
    {"Q703",
     {{kQuestion, choice("type = 2\nsolution = \"10000\"", repeated("##EXOOP\nA¶\n", 6))}},
     {"exercises/t/1.question:16"},
     {{kQuestion, choice("type = 2\nsolution = \"10000\"", repeated("##EXOOP\nA¶\n", 5))}}},
    {"Q704",
     {{kQuestion, options("10")}},
     {"exercises/t/1.question:4"},
     {{kQuestion, options("01000")}}},
    {"Q705",
     {{kQuestion, options("00100")}},
     {"exercises/t/1.question:4"},
     {{kQuestion, options("01000")}}},
    {"Q706",
     {{kQuestion, options("11000")}},
     {"exercises/t/1.question:4"},
     {{kQuestion, choice("type = 1\nsolution = \"11000\"", "##EXOCK\nA¶\n##EXOCK\nB¶\n")}}},
    {"Q707",
     {{kQuestion, typed("énergie")}},
     {"exercises/t/1.question:4"},
     {{kQuestion, typed("Energie")}}},
    {"Q708", {{kQuestion, typed("24")}}, {"exercises/t/1.question:4"}, {{kQuestion, typed("h2o")}}},
    {"Q709",
     {{kChapter, "Chapitre = 1\nTitre = \"T\"\nNbquest = 2\n"}},
     {"exercises/t/chapter.toml:3"},
     {{kChapter, "Chapitre = 1\nTitre = \"T\"\nNbquest = 1\n"}}},
    {"Q710",
     {{"exercises/t/2.question",
       CheckedCourse::question("REFERENCE = 201\ntype = 3\nsolution = \"a\"", "##EXOTX\n¶\n")}},
     {"exercises/t/2.question:2"},
     {{kQuestion, options("10000")}}},
};

class CourseRule : public testing::TestWithParam<CourseRow> {};

TEST_P(CourseRule, tellsTheFaultInItsPlaceAndNothingElse) {
    const auto toldOf = [](const std::map<std::string, std::string>& files) {
        const CheckedCourse course;
        for (const auto& [name, text] : files)
            course.work.write("src/" + name, text);
        return course.told();
    };
    std::vector<std::string> expected;
    for (const std::string& place : GetParam().told)
        expected.push_back(std::string(GetParam().code) + ' ' + place);
    EXPECT_EQ(toldOf(GetParam().wrong), expected);
    EXPECT_THAT(toldOf(GetParam().right), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Rows, CourseRule, testing::ValuesIn(kCourseRows), [](const auto& row) {
    return row.param.code + std::string("_") + std::to_string(row.index);
});

TEST(RuleTable, hasARowForEveryRuleHere) {
    std::set<std::string> rows;
    for (const SourceRow& row : kSourceRows)
        rows.insert(row.code);
    for (const CourseRow& row : kCourseRows)
        rows.insert(row.code);
    std::set<std::string> names;
    std::vector<std::string> codes;
    for (const check::Rule& rule : check::ruleTable()) {
        codes.emplace_back(rule.code);
        names.emplace(rule.name);
    }
    EXPECT_THAT(codes, testing::UnorderedElementsAreArray(rows));
    EXPECT_EQ(names.size(), codes.size());
}

} // namespace
