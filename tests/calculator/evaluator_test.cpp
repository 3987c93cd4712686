#include "calculator/checks.h"
#include "calculator/evaluator.h"
#include "calculator/normalise.h"
#include "support/french_locale.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <charconv>
#include <string>

namespace calculator {
namespace {

/// Evaluates and keeps the trace, so that a failing row tells what happened.
struct Traced {
    explicit Traced(const Text& expression, AngleMode angles = AngleMode::Degrees) {
        Hooks hooks;
        hooks.trace = [this](const char* step, TextView text) {
            trace += std::string(step) + " [" + text::toUtf8(text) + "]\n";
        };
        found = Evaluator(hooks).evaluer(expression, angles);
    }
    std::string trace;
    Evaluation found;
};

/// Rows of an expression, " = " and its result.
void expectResults(std::initializer_list<Text> rows, AngleMode angles = AngleMode::Degrees) {
    for (const Text& row : rows) {
        const std::size_t end = row.rfind(u" = ");
        const Traced run(row.substr(0, end), angles);
        EXPECT_EQ(run.found.error, ErrorCode::None) << run.trace;
        EXPECT_EQ(run.found.text, row.substr(end + 3)) << run.trace;
    }
}

TEST(Result, ofArithmetic) {
    expectResults({u"2 + 3 * 4 = 14", u"2 * 3 ^ 2 = 18", u"(1 + 2) * 3 = 9", u"42 = 42",
                   u"((2 + 3) * (4 - 1)) = 15", u"1 / 3 = .333333333333333", u"0 ^ 0 = 1",
                   u"2 ^ -1 = .5"});
}

TEST(Result, ofSigns) {
    expectResults({u"5 - -3 = 8", u"5 - (-3) = 8", u"---4 = -4", u"+5 = 5", u"2 * -3 = -6",
                   u"-(2 + 3) = -5", u"1 - (2 - 5) - 1 = 3", u"-(-(-3)) = -3"});
}

TEST(Result, ofExponents) {
    expectResults({u"(2E+3) = 2E+3", u"(2E+3) * 1 = 2000", u"5E-6 * 2 = .00001", u"2d3 + 1 = 2001",
                   u"1E+300 / 1E-5 = 1E+305", u"1E-200 * 1E-200 = 0"});
}

TEST(Result, ofFunctions) {
    expectResults({u"sin 30 = .5", u"invSIN 1 = 90", u"invsin -1 = -90", u"invCOS 0 = 90",
                   u"invCOS -1 = 180", u"tan 45 = 1", u"invTAN 1 = 45", u"invSIN .5 = 30",
                   u"log 1000 = 3", u"ln 1 = 0", u"exp 0 = 1", u"SQR (9 + 16) = 5",
                   u"2 * sin (15 * 2) + 1 = 2", u"ln exp 2 = 2"});
    expectResults({u"sin 30 = -.988031624092862", u"invSIN 1 = 1.5707963267949",
                   u"SIN (COS 0) = .841470984807897"},
                  AngleMode::Radians);
}

// Pi is a rounded number, so that a right angle has a cosine. How much of it there is, a system's
// library knows to sixteen digits, or to four where it leaves the angle to the processor.
TEST(Result, ofACosineThatIsNearlyNothing) {
    const struct {
        Text expression;
        double result;
    } rows[] = {{u"cos 90", 6.12323399573677E-17}, {u"sin cos 90", 1.06870594095655E-18}};
    for (const auto& row : rows) {
        const Traced run(row.expression);
        EXPECT_EQ(run.found.error, ErrorCode::None) << run.trace;
        const std::string digits = text::toUtf8(run.found.text);
        double found = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), found);
        EXPECT_NEAR(found, row.result, row.result * 1E-4) << run.trace;
    }
}

// All of these are meant so: the text is rewritten by simple rules, and pupils' results must not
// change from one edition to the next.
TEST(Result, isOddOnPurpose) {
    expectResults({u"2 ^ 3 ^ 2 = 64",                   // powers from the left
                   u"-3 ^ 2 = 9",                       // a sign binds tighter than a power
                   u"1 + -3 ^ 2 = -8",                  // ... but folds with the operator before it
                   u"8 / 2 / 2 = 2",                    // divisions first, from the left
                   u"2 * 6 / 3 * 2 = 8",                // ... before any multiplication
                   u"10 - 2 - 3 = 5",                   // subtractions from the left
                   u"2 + 1 - 5 = -2",                   // ... before any addition: 2 + -4
                   u"1 + 2 - 3 + 4 - 5 = -1",           // 1 + (2-3) + (4-5)
                   u"ln (20 + 7) = 1.94591014905531",   // the space after LON is lost: ln of the 7
                   u"ln (20 + 7.5) = 2.01490302054226", // ... of 7.5
                   u"sin -(1 + 2) = 2",   // a sign makes the group an argument: sin 0 + 2
                   u"3(2 + 3) = 35",      // no implicit multiplication: texts are joined
                   u"(1)(2) = 12",        // plain groups lose their parentheses
                   u"2E(3) = 2E3",        // ... even within a number
                   u"3(1 - 5) + 1 = 0",   // a spliced sign becomes an operator: 3 - 4 + 1
                   u"5 + (+(1 + 2)) = 8", // a plus with nothing before it becomes a sign
                   u"1,5 + 1 = 2",        // a comma ends the number
                   u"\u00F9 4 = \u00D94", // a capital is made of it before it could be a root
                   u"abc = ABC",          // what holds nothing to calculate is the result
                   u"1E999 = 1E999",
                   u" = ",
                   u"() = "});
}

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
                 u"2 * (+(1 + 2))", // the sign comes out with the number: 2 * + 3
                 u"ln (2 + 3)"});   // LON5: one digit is passed over, nothing is left
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

// With time that grows as the square of the length, each of these would outlast the run.
TEST(LongExpressions, takeNoLongerByTheCharacter) {
    const Text digits(500'000, u'1');
    const std::pair<Text, Text> rows[] = {
        {repeated(20'000, u"(") + u"7" + repeated(20'000, u")"), u"7"},
        {repeated(500, u"(") + u"1" + repeated(500, u"+1)"), u"501"},
        {repeated(250'000, u"(") + digits + repeated(250'000, u")"), digits},
        {repeated(200'000, u"(-") + digits + repeated(200'000, u")"), digits},
        {repeated(200'000, u"(") + u"1" + repeated(200'000, u"(1))"), Text(200'001, u'1')},
        {repeated(30'000, u"(") + u"2E+" + Text(500'000, u'0') + repeated(30'000, u")"),
         u"2E+" + Text(500'000, u'0')},
        {repeated(32'000, u"sin ") + u"0", u"0"},
        {repeated(16'000, u"sin 0 + ") + u"1", u"1"},
        {repeated(16'000, u"(1E1)+") + u"0", u"160000"},
        {Text(500'000, u'-') + u"3", u"3"},
        {Text(500'000, u' ') + u"3", u"3"},
    };
    for (const auto& [expression, expected] : rows) {
        const Evaluation found = evaluated(expression);
        EXPECT_EQ(found.error, ErrorCode::None) << expression.size();
        EXPECT_TRUE(found.text == expected) << expression.size() << " " << found.text.size();
    }
}

// Groups whose values are no numbers, or join what is beside them, are each a clean-up of the
// whole.
TEST(LongExpressions, thatNeedTooManyCleanUpsAreImpossible) {
    EXPECT_EQ(evaluated(repeated(1'000, u"\u00F9()")).text, Text(1'000, u'\u00D9'));
    EXPECT_EQ(evaluated(repeated(1'000, u"(0+1)")).text, Text(1'000, u'1'));
    const Text joined = repeated(15'000, u"3(1-5)");
    const Text kept = repeated(15'000, u"(") + Text(300'000, u'Z') + repeated(15'000, u")");
    for (const Text& expression : {joined, kept})
        EXPECT_EQ(evaluated(expression).error, ErrorCode::Impossible) << expression.size();
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
