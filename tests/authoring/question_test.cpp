#include "authoring/markdown.h"
#include "exercises/answer_check.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

authoring::CompiledQuestion question(const std::string& markdown,
                                     std::optional<int> type = std::nullopt) {
    return compiler().question(markdown, 1, type);
}

TEST(Question, takesItsTypeAndSolutionFromTheText) {
    struct {
        const char* markdown;
        std::optional<int> asked;
        int type;
        const char* solution;
        const char* part;
    } rows[] = {
        {"Combien ?\n\n- [ ] un\n- [x] deux\n- [ ] trois\n",
         {},
         2,
         "01000",
         "##EXOOP\n##POX070\nun¶"},
        {"Lesquels ?\n\n- [x] un\n- [ ] deux\n- [x] trois\n",
         {},
         1,
         "10100",
         "##EXOCK\n##POX070\nun¶"},
        {"Lesquels ?\n\n- [x] un\n- [ ] deux\n", 1, 1, "10000", "##EXOCK"},
        {"C’est le [fer](réponse).\n", {}, 3, "fer", "##EXOTX\n.¶"},
        {"La [Médaille / la médaille / médailles](reponse)\n", {}, 3, "medaille", "##EXOTX"},
        {"Un [porte-clés](réponse)\n", {}, 3, "portecles", "##EXOTX"},
        {"De [l’eau](réponse)\n", {}, 3, "l eau", "##EXOTX"},
    };
    for (const auto& row : rows) {
        const auto compiled = question(row.markdown, row.asked);
        EXPECT_EQ(told(compiled.faults), "") << row.markdown;
        EXPECT_EQ(compiled.type, row.type) << row.markdown;
        EXPECT_EQ(compiled.solution, row.solution) << row.markdown;
        EXPECT_THAT(compiled.question.source, HasSubstr(row.part)) << row.markdown;
        EXPECT_FALSE(compiled.siFaux.has_value());
    }
}

TEST(Question, putsTheCommentAndItsLinkAfterTheHeading) {
    const auto compiled =
        question("Qui ?\n\n- [x] a\n- [ ] b\n\n## Si c’est faux\n\nRelire **tout**.\n\n"
                 "[Revoir l'exemple %2](page:24)\n");
    EXPECT_EQ(told(compiled.faults), "");
    ASSERT_TRUE(compiled.siFaux.has_value());
    EXPECT_THAT(compiled.siFaux->source, HasSubstr("##TAB000590 1\n"));
    EXPECT_THAT(compiled.siFaux->source, HasSubstr("##FINTAC02\n##PIY004\n##PIY008\n##PIY002\n##"
                                                   "C002\n##EXOLIRevoir l’exemple\u00A0%2#24\n"));
    EXPECT_EQ(compiled.question.source.find("Relire"), std::string::npos);
}

TEST(Question, refusesWhatTheJudgeWouldTakeWrongly) {
    struct {
        const char* markdown;
        std::optional<int> asked;
        const char* expected;
    } rows[] = {
        {"[0,5](réponse)\n", {}, "cherche un nombre comme un mot"},
        {"[5 cm](réponse)\n", {}, "cherche un nombre comme un mot"},
        {"[m/s](réponse)\n", {}, "ne voit pas le signe « / »"},
        {"[CO](réponse)\n", {}, "ne distingue pas les majuscules"},
        {"[âge](réponse)\n", {}, "garde l’accent de « â »"},
        {"[](réponse)\n", {}, "il manque la réponse attendue"},
        {"[cheval / chevaux](réponse)\n", {}, "« chevaux » : le juge, qui cherche « cheval »"},
        {"[a](réponse) [b](réponse)\n", {}, "une seule réponse"},
        {"[fer](réponse)\n\n- [x] a\n- [ ] b\n", {}, "pas les deux"},
        {"[fer](réponse)\n", 2, "« type » ne va pas"},
        {"- [ ] a\n- [ ] b\n", {}, "aucun choix n’est coché"},
        {"- [x] a\n", {}, "de deux à cinq choix"},
        {"- [x] a\n- [ ] b\n- [ ] c\n- [ ] d\n- [ ] e\n- [ ] f\n", {}, "de deux à cinq choix"},
        {"- [x] a\n- b\n", {}, "chaque choix commence par une case"},
        {"- [x] a\n- [x] b\n", 2, "« type » ne va pas"},
        {"- [x] a\n- [ ] b\n\nautre\n\n- [x] c\n- [ ] d\n", {}, "une seule liste"},
        {"Rien\n", {}, "il manque la réponse"},
        {"- [x] a\n- [ ] b\n\n[x](page:1) [y](page:2)\n", {}, "un lien au plus"},
        {"[fer](réponse \"b\")\n", {}, "n’ont pas de bulle"},
        {"- [x] a\n- [ ] b\n\n## Une remarque\n\nc\n", {}, "ce titre ne se verrait pas"},
        {"- [x] a\n- [ ] b\n\n## Si c'est faux\n\n[fer](réponse)\n", {}, "se met dans la question"},
    };
    for (const auto& row : rows) {
        const auto compiled = question(row.markdown, row.asked);
        EXPECT_THAT(told(compiled.faults), HasSubstr(row.expected)) << row.markdown;
        EXPECT_EQ(compiled.type, 0) << row.markdown;
    }
}

TEST(Question, hasASolutionThatFitsEveryFormTold) {
    for (const char16_t* form : {u"électron", u"l'électron", u"Électrons", u"un electron"})
        EXPECT_TRUE(exercises::castexte(
            QString::fromStdString(
                question("[électron / l’électron / Électrons](réponse)\n").solution)
                .toStdU16String(),
            form));
}

} // namespace
