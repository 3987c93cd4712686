#include "calculator/checks.h"
#include "calculator/evaluator.h"
#include "calculator/normalise.h"
#include "support/french_locale.h"

#include <QString>

#include <gtest/gtest.h>

namespace calculator {
namespace {

/// Evaluates and keeps the trace, so that a failing row tells what happened.
struct Traced {
    explicit Traced(const Text& expression, AngleMode angles = AngleMode::Degrees) {
        Hooks hooks;
        hooks.trace = [this](const char* step, TextView text) {
            trace += std::string(step) + " [" +
                     QString::fromStdU16String(Text(text)).toStdString() + "]\n";
        };
        found = Evaluator(hooks).evaluer(expression, angles);
    }
    std::string trace;
    Evaluation found;
};

struct Row {
    Text expression;
    Text result;
    AngleMode angles = AngleMode::Degrees;
};

class Result : public testing::TestWithParam<Row> {};

TEST_P(Result, isTheText) {
    const Traced run(GetParam().expression, GetParam().angles);
    EXPECT_EQ(run.found.error, ErrorCode::None) << run.trace;
    EXPECT_EQ(run.found.text, GetParam().result) << run.trace;
}

constexpr AngleMode kRadians = AngleMode::Radians;

INSTANTIATE_TEST_SUITE_P(Arithmetic, Result,
                         testing::Values(Row{u"2 + 3 * 4", u"14"}, Row{u"2 * 3 ^ 2", u"18"},
                                         Row{u"(1 + 2) * 3", u"9"}, Row{u"42", u"42"},
                                         Row{u"((2 + 3) * (4 - 1))", u"15"},
                                         Row{u"1 / 3", u".333333333333333"}, Row{u"0 ^ 0", u"1"},
                                         Row{u"2 ^ -1", u".5"}));

INSTANTIATE_TEST_SUITE_P(Signs, Result,
                         testing::Values(Row{u"5 - -3", u"8"}, Row{u"5 - (-3)", u"8"},
                                         Row{u"---4", u"-4"}, Row{u"+5", u"5"},
                                         Row{u"2 * -3", u"-6"}, Row{u"-(2 + 3)", u"-5"},
                                         Row{u"1 - (2 - 5) - 1", u"3"}, Row{u"-(-(-3))", u"-3"}));

INSTANTIATE_TEST_SUITE_P(Exponents, Result,
                         testing::Values(Row{u"(2E+3)", u"2E+3"}, Row{u"(2E+3) * 1", u"2000"},
                                         Row{u"5E-6 * 2", u".00001"}, Row{u"2d3 + 1", u"2001"},
                                         Row{u"1E+300 / 1E-5", u"1E+305"},
                                         Row{u"1E-200 * 1E-200", u"0"}));

INSTANTIATE_TEST_SUITE_P(
    Functions, Result,
    testing::Values(Row{u"sin 30", u".5"}, Row{u"sin 30", u"-.988031624092862", kRadians},
                    Row{u"invSIN 1", u"90"}, Row{u"invSIN 1", u"1.5707963267949", kRadians},
                    Row{u"invsin -1", u"-90"}, Row{u"invCOS 0", u"90"}, Row{u"invCOS -1", u"180"},
                    Row{u"tan 45", u"1"}, Row{u"invTAN 1", u"45"}, Row{u"invSIN .5", u"30"},
                    Row{u"SIN (COS 0)", u".841470984807897", kRadians},
                    Row{u"sin cos 90", u"1.06870594095655E-18"}, Row{u"log 1000", u"3"},
                    Row{u"ln 1", u"0"}, Row{u"exp 0", u"1"}, Row{u"SQR (9 + 16)", u"5"},
                    Row{u"2 * sin (15 * 2) + 1", u"2"}, Row{u"ln exp 2", u"2"}));

// All of these are meant so: the text is rewritten by simple rules, and pupils' results must not
// change from one edition to the next.
INSTANTIATE_TEST_SUITE_P(
    Oddities, Result,
    testing::Values(
        Row{u"2 ^ 3 ^ 2", u"64"},                   // powers from the left
        Row{u"-3 ^ 2", u"9"},                       // a sign binds tighter than a power
        Row{u"1 + -3 ^ 2", u"-8"},                  // ... but folds with the operator before it
        Row{u"8 / 2 / 2", u"2"},                    // divisions first, from the left
        Row{u"2 * 6 / 3 * 2", u"8"},                // ... before any multiplication
        Row{u"10 - 2 - 3", u"5"},                   // subtractions from the left
        Row{u"2 + 1 - 5", u"-2"},                   // ... before any addition: 2 + -4
        Row{u"1 + 2 - 3 + 4 - 5", u"-1"},           // 1 + (2-3) + (4-5)
        Row{u"ln (20 + 7)", u"1.94591014905531"},   // the space after LON is lost: ln of the 7
        Row{u"ln (20 + 7.5)", u"2.01490302054226"}, // ... of 7.5
        Row{u"sin -(1 + 2)", u"2"},                 // a sign makes the group an argument: sin 0 + 2
        Row{u"3(2 + 3)", u"35"},                    // no implicit multiplication: texts are joined
        Row{u"(1)(2)", u"12"},                      // plain groups lose their parentheses
        Row{u"2E(3)", u"2E3"},                      // ... even within a number
        Row{u"3(1 - 5) + 1", u"0"},                 // a spliced sign becomes an operator: 3 - 4 + 1
        Row{u"1,5 + 1", u"2"},                      // a comma ends the number
        Row{u"\u00F9 4", u"\u00D94"}, // a capital is made of it before it could be a root
        Row{u"abc", u"ABC"},          // what holds nothing to calculate is the result
        Row{u"1E999", u"1E999"}, Row{u"", u""}, Row{u"()", u""}));

void expectFault(ErrorCode error, std::initializer_list<Text> expressions) {
    for (const Text& expression : expressions) {
        const Traced run(expression);
        EXPECT_EQ(run.found.error, error) << run.trace;
    }
}

TEST(Fault, calculationsWithoutAResult) {
    expectFault(ErrorCode::Impossible,
                {u"1 / 0", u"0 / 0", u"0 ^ -1", u"(-8) ^ .5", u"9 ^ 999", u"1E308 * 10",
                 u"1E999 - 1", u"1 / 1E999", u"ln 0", u"log -1", u"SQR -4", u"invSIN 2",
                 u"invCOS -1.5", u"exp 710", u"invTAN 1E999"});
}

TEST(Fault, syntax) {
    expectFault(ErrorCode::Parentheses,
                {u"(2 + 3", u"2 + 3)", u"2 *  * (3"}); // both faults: parentheses win
    expectFault(ErrorCode::Operators, {u"2 *  * 3", u"2 * ", u"2 / ", u"2 ^ ", u"2 / * 3"});
}

// "+" and "-" pass the check: what lacks an operand is found when it is calculated.
TEST(Fault, leftUnevaluated) {
    expectFault(ErrorCode::Impossible,
                {u"2 + ", u"2 - ", u"2 + * 3", u"* 3", u")2(", u"sin ", u"sin",
                 u"ln (2 + 3)"}); // LON5: one digit is passed over, nothing is left
}

TEST(Simplifier, foldsAndSpaces) {
    const std::pair<Text, Text> rows[] = {
        {u"5 - -3", u" 5 + 3 "},
        {u"(-(-3))", u" 3 "},
        {u"(2E+3)()", u" (2E+3)() "},
        {u"2E-3-4*(-5+1)", u" 2E-3 - 4 * (-5 + 1) "},
        {u"lnsqr4+invtan1", u" LON SQR 4 + ITA 1 "},
        {u" LON 4 ", u" LON4 "},
        {u"INV", u" I  "},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(simplifier(text), expected);
}

TEST(Compter, countsAtEveryPosition) {
    EXPECT_EQ(compter(u" SIN (2 + -3) * ASIN "), (Counters{1, 2, 2}));
    EXPECT_TRUE(compter(Text(32767, u'(')));
    EXPECT_FALSE(compter(Text(32768, u'(')));
}

/// `piece` so many times.
Text repeated(int times, const Text& piece) {
    Text text;
    for (int i = 0; i < times; ++i)
        text += piece;
    return text;
}

Evaluation evaluated(const Text& expression) {
    return Evaluator().evaluer(expression, AngleMode::Degrees);
}

// The position of a right operand's end is the one thing that counts characters in 16 bits; a "-"
// is calculated before the sum in front of it has become shorter.
TEST(LongExpressions, endWhereSixteenBitsEnd) {
    // " 1 + 1 ... - 1 ": 4 characters an operator, and " 1 " itself.
    EXPECT_EQ(evaluated(u"1" + repeated(8189, u"+1") + u"-1").error, ErrorCode::None);
    EXPECT_EQ(evaluated(u"1" + repeated(8191, u"+1") + u"-1").error, ErrorCode::Impossible);
    EXPECT_EQ(evaluated(u"1" + repeated(8190, u"+1")).text, u"8191");
}

TEST(LongExpressions, depthIsNoDanger) {
    EXPECT_EQ(evaluated(repeated(20000, u"(") + u"7" + repeated(20000, u")")).text, u"7");
    EXPECT_EQ(evaluated(repeated(500, u"(") + u"1" + repeated(500, u"+1)")).text, u"501");
}

// Each pass makes one function of a nest a number, and a last one has nothing left to do.
TEST(LongExpressions, endAfterAHundredPasses) {
    const auto nest = [](int depth) {
        return evaluated(repeated(depth, u"SQR (") + u"0+1" + repeated(depth, u")"));
    };
    EXPECT_EQ(nest(99).text, u"1");
    EXPECT_EQ(nest(100).error, ErrorCode::Impossible);
}

TEST(CancelSignal, endsTheEvaluationAtOnce) {
    int asked = 0;
    Hooks hooks;
    hooks.cancelled = [&asked] { return ++asked == 3; };
    for (const Text expression : {u"1 + 2 + 3 + 4 + 5", u"(1 + 2) * (3 + 4) * (5 + 6)",
                                  u"(1E+1) + (1E+2) + (1E+3)"}) { // groups without operators
        asked = 0;
        EXPECT_EQ(Evaluator(hooks).evaluer(expression, AngleMode::Degrees).error,
                  ErrorCode::Impossible);
        EXPECT_EQ(asked, 3);
    }
}

TEST(Locale, changesNothing) {
    const test_support::FrenchLocale french;
    EXPECT_EQ(evaluated(u"1.5 / 2 + SQR 2.25").text, u"2.25");
    EXPECT_EQ(evaluated(u"1,5 + 1").text, u"2");
}

} // namespace
} // namespace calculator
