#include "exercises/answer_check.h"
#include "exercises/letters.h"
#include "exercises/literal_answer_check.h"
#include "jet/unicode.h"

#include <QChar>

#include <gtest/gtest.h>

#include <random>

namespace exercises {
namespace {

struct Fold {
    const char16_t* typed;
    const char16_t* folded;
};

void PrintTo(const Fold& row, std::ostream* out) {
    *out << jet::toUtf8(row.typed);
}

class FoldedAnswer : public testing::TestWithParam<Fold> {};

TEST_P(FoldedAnswer, isAsTheTableSays) {
    EXPECT_EQ(foldedAnswer(GetParam().typed), GetParam().folded);
}

INSTANTIATE_TEST_SUITE_P(LettersAndSigns, FoldedAnswer,
                         testing::Values(Fold{u"Énergie", u"energie"},
                                         Fold{u"ÉÈÊÀÙÔÇ éèêàùôç", u"eeeauoc eeeauoc"},
                                         Fold{u"a+b*c/d'e,f;g.h!i?j:k", u"a b c d e f g h i j k"},
                                         Fold{u"9.81", u"9 81"}, Fold{u"demi-vie", u"demivie"},
                                         Fold{u"a_b", u"ab"}, Fold{u"  a  ", u"  a  "},
                                         Fold{u"", u""}, Fold{u"-", u""}));
// These letters are not folded, and the apostrophe of print is not the typed one; meant so.
INSTANTIATE_TEST_SUITE_P(Unfolded, FoldedAnswer,
                         testing::Values(Fold{u"ÂÎËÜÛ œ", u"âîëüû œ"}, Fold{u"c’est", u"c’est"}));
// What slides into the place of a deleted character is not looked at; meant so.
INSTANTIATE_TEST_SUITE_P(AfterADeletion, FoldedAnswer,
                         testing::Values(Fold{u"a--b", u"a-b"}, Fold{u"----", u"--"},
                                         Fold{u"-É", u"é"}, Fold{u"-_-É", u"_é"},
                                         Fold{u"a-.b", u"a.b"}, Fold{u"-é-é", u"éé"}));

struct Check {
    const char16_t* solution;
    const char16_t* typed;
    bool right;
};

void PrintTo(const Check& row, std::ostream* out) {
    *out << jet::toUtf8(row.solution) << " <- " << jet::toUtf8(row.typed);
}

class Castexte : public testing::TestWithParam<Check> {};

TEST_P(Castexte, isAsTheTableSays) {
    EXPECT_EQ(castexte(GetParam().solution, GetParam().typed), GetParam().right);
}

INSTANTIATE_TEST_SUITE_P(
    WholeWords, Castexte,
    testing::Values(Check{u"energie", u"Énergie", true}, Check{u"Energie", u"énergie", true},
                    Check{u"masse", u"c'est la masse", true}, Check{u"masse", u"massette", false},
                    Check{u"masse", u"la biomasse", false}, Check{u"masse", u"amasse masse", true},
                    Check{u"electron", u"electronique", false}, Check{u"masse", u"masse2", false},
                    Check{u"masse", u"(masse)", true}, Check{u"masse", u"masse…", true},
                    Check{u"force vive", u"la force vive", true}, Check{u"9 81", u"9,81", true},
                    Check{u"9 81", u"9,810", false}, Check{u"m", u"m²", false},
                    Check{u"Ω", u"10 ω", true}, Check{u"aab", u"aaab aab", true}));
INSTANTIATE_TEST_SUITE_P(
    Endings, Castexte,
    testing::Values(Check{u"electron", u"électrons", true}, Check{u"force", u"forces", true},
                    Check{u"petit", u"PETITE", true}, Check{u"petit", u"petites", true},
                    Check{u"eau", u"eaux", true}, Check{u"force", u"forcess", false},
                    Check{u"petit", u"petitse", false},
                    // nothing is ever taken off the solution
                    Check{u"forces", u"force", false}));
// Only what is typed is folded, so such a solution fits nothing; meant so.
INSTANTIATE_TEST_SUITE_P(SolutionAsItStands, Castexte,
                         testing::Values(Check{u"énergie", u"énergie", false},
                                         Check{u"demi-vie", u"demi-vie", false},
                                         Check{u"9,81", u"9,81", false},
                                         Check{u"pôle", u"-pôle", false},
                                         Check{u"âge", u"ÂGE", true}));
INSTANTIATE_TEST_SUITE_P(Empty, Castexte,
                         testing::Values(Check{u"masse", u"", false}, Check{u"", u"", true},
                                         Check{u"", u"masse", false}, Check{u"", u"a", false},
                                         Check{u"", u"  ", true}, Check{u"", u"es", true}));

TEST(Letters, agreeWithUnicode) {
    for (char16_t c = 0; c < 0x0180; ++c)
        EXPECT_EQ(lowerCase(c), QChar(c).toLower().unicode()) << int(c);
    for (char16_t c = 0x0386; c < 0x03CF; ++c)
        EXPECT_EQ(lowerCase(c), QChar(c).toLower().unicode()) << int(c);
    for (const char16_t c : u"\u2126\u212A\u212B\uFFFF")
        EXPECT_EQ(lowerCase(c), QChar(c).toLower().unicode()) << int(c);
    for (int c = 0; c <= 0xFFFF; ++c) {
        const QChar character(c);
        const bool counts = character.isLetterOrNumber();
        if (counts || c < 0x0250) {
            EXPECT_EQ(isWordCharacter(character.unicode()), counts) << c;
        }
    }
    for (const char16_t c : u"\u2014\u2026\u20AC\u2192\u221E\u3001\xD83D\xDE00\xFFFD")
        EXPECT_FALSE(isWordCharacter(c)) << int(c);
}

/// Any characters, but so that the folding table and the words of the solution come up often.
std::u16string anything(std::mt19937& random, std::size_t most) {
    static constexpr std::u16string_view kOften = u"-_-_ ..éÉàabasesxSE";
    std::u16string text(random() % (most + 1), u' ');
    for (char16_t& c : text) {
        const auto any = random();
        c = any % 8 == 0 ? static_cast<char16_t>(any >> 8) : kOften[(any >> 8) % kOften.size()];
    }
    return text;
}

TEST(CastexteAnywhere, agreesWithThePlainestWay) {
    std::mt19937 random(5);
    int right = 0;
    for (int i = 0; i < 50'000; ++i) {
        const std::u16string typed = anything(random, 24);
        const std::u16string solution = anything(random, 3);
        ASSERT_EQ(foldedAnswer(typed), test::foldLiterally(typed)) << jet::toUtf8(typed);
        const bool expected = test::checkLiterally(solution, typed);
        ASSERT_EQ(castexte(solution, typed), expected)
            << jet::toUtf8(solution) << " <- " << jet::toUtf8(typed);
        right += expected;
    }
    EXPECT_GT(right, 1000); // the rows do reach both verdicts
}

/// With time that grows as the square of the length this would outlast the run.
TEST(CastexteAnywhere, longTextsTakeNoLonger) {
    const std::size_t length = 1'000'000;
    const std::u16string dashes(length, u'-');
    EXPECT_EQ(foldedAnswer(dashes).size(), length / 2);
    std::u16string words;
    for (std::size_t i = 0; i < length / 2; ++i)
        words += u"a ";
    EXPECT_FALSE(castexte(words.substr(0, length / 2) + u"b", words));
    EXPECT_TRUE(castexte(words.substr(0, length / 2), words));
}

} // namespace
} // namespace exercises
