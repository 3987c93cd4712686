#include "calculator/checks.h"
#include "calculator/evaluator.h"
#include "calculator/normalise.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <QString>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <random>

namespace calculator {
namespace {

std::string shown(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())).toStdString();
}

/// Evaluates and keeps the trace, so that a failing row tells what happened.
struct Traced {
    explicit Traced(const Text& expression, AngleMode angles = AngleMode::Degrees) {
        Hooks hooks;
        hooks.trace = [this](const char* step, TextView text) {
            trace += std::string(step) + " [" + shown(text) + "]\n";
        };
        found = Evaluator(hooks).evaluer(expression, angles);
    }
    std::string trace;
    Evaluation found;
};

struct Row {
    const char16_t* expression;
    const char16_t* result;
    AngleMode angles = AngleMode::Degrees;
};

class Result : public testing::TestWithParam<Row> {};

TEST_P(Result, isTheText) {
    const Traced run(GetParam().expression, GetParam().angles);
    EXPECT_EQ(run.found.error, ErrorCode::None) << run.trace;
    EXPECT_EQ(shown(run.found.text), shown(GetParam().result)) << run.trace;
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
                    Row{u"invsin -1", u"-90"}, Row{u"invCOS 0", u"90"}, Row{u"invTAN 1", u"45"},
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

struct FaultRow {
    const char16_t* expression;
    ErrorCode error;
};

class Fault : public testing::TestWithParam<FaultRow> {};

TEST_P(Fault, hasItsCode) {
    const Traced run(GetParam().expression);
    EXPECT_EQ(run.found.error, GetParam().error) << run.trace;
}

constexpr ErrorCode kImpossible = ErrorCode::Impossible;

INSTANTIATE_TEST_SUITE_P(
    Calculations, Fault,
    testing::Values(FaultRow{u"1 / 0", kImpossible}, FaultRow{u"0 / 0", kImpossible},
                    FaultRow{u"0 ^ -1", kImpossible}, FaultRow{u"(-8) ^ .5", kImpossible},
                    FaultRow{u"9 ^ 999", kImpossible}, FaultRow{u"1E308 * 10", kImpossible},
                    FaultRow{u"1E999 - 1", kImpossible}, FaultRow{u"1 / 1E999", kImpossible},
                    FaultRow{u"invTAN 1E999", kImpossible}));

INSTANTIATE_TEST_SUITE_P(
    FunctionsWithoutValue, Fault,
    testing::Values(FaultRow{u"ln 0", kImpossible}, FaultRow{u"log -1", kImpossible},
                    FaultRow{u"SQR -4", kImpossible}, FaultRow{u"invSIN 2", kImpossible},
                    FaultRow{u"invCOS -1.5", kImpossible}, FaultRow{u"exp 710", kImpossible}));

INSTANTIATE_TEST_SUITE_P(Syntax, Fault,
                         testing::Values(FaultRow{u"(2 + 3", ErrorCode::Parentheses},
                                         FaultRow{u"2 + 3)", ErrorCode::Parentheses},
                                         FaultRow{u"2 *  * 3", ErrorCode::Operators},
                                         FaultRow{u"2 *  * (3",
                                                  ErrorCode::Parentheses}, // both: parentheses win
                                         FaultRow{u"2 * ", ErrorCode::Operators},
                                         FaultRow{u"2 / ", ErrorCode::Operators},
                                         FaultRow{u"2 ^ ", ErrorCode::Operators},
                                         FaultRow{u"2 / * 3", ErrorCode::Operators}));

// "+" and "-" pass the check: what lacks an operand is found when it is calculated.
INSTANTIATE_TEST_SUITE_P(
    LeftUnevaluated, Fault,
    testing::Values(FaultRow{u"2 + ", kImpossible}, FaultRow{u"2 - ", kImpossible},
                    FaultRow{u"2 + * 3", kImpossible}, FaultRow{u"* 3", kImpossible},
                    FaultRow{u")2(", kImpossible}, FaultRow{u"sin ", kImpossible},
                    FaultRow{u"sin", kImpossible},
                    // The space after LON is lost: one digit is passed over, nothing is left.
                    FaultRow{u"ln (2 + 3)", kImpossible}));

TEST(Simplifier, foldsAndSpaces) {
    EXPECT_EQ(shown(simplifier(u"5 - -3")), " 5 + 3 ");
    EXPECT_EQ(shown(simplifier(u"(-(-3))")), " 3 ");
    EXPECT_EQ(shown(simplifier(u"(2E+3)()")), " (2E+3)() ");
    EXPECT_EQ(shown(simplifier(u"2E-3-4*(-5+1)")), " 2E-3 - 4 * (-5 + 1) ");
    EXPECT_EQ(shown(simplifier(u"lnsqr4+invtan1")), " LON SQR 4 + ITA 1 ");
    EXPECT_EQ(shown(simplifier(u" LON 4 ")), " LON4 ");
    EXPECT_EQ(shown(simplifier(u"INV")), " I  ");
}

TEST(Compter, countsAtEveryPosition) {
    const auto found = compter(u" SIN (2 + -3) * ASIN ");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->nbparentheses, 1);
    EXPECT_EQ(found->nboperateurs, 2);
    EXPECT_EQ(found->nbfonctions, 2);
    EXPECT_TRUE(compter(Text(32767, u'(')));
    EXPECT_FALSE(compter(Text(32768, u'(')));
}

Text chain(int operators) {
    Text text = u"1";
    for (int i = 0; i < operators; ++i)
        text += u"+1";
    return text;
}

// The position of a right operand's end is the one thing that counts characters in 16 bits; a "-"
// is calculated before the sum in front of it has become shorter.
TEST(LongExpressions, endWhereSixteenBitsEnd) {
    const auto error = [](int operators) {
        return Evaluator().evaluer(chain(operators) + u"-1", AngleMode::Degrees).error;
    };
    // " 1 + 1 ... - 1 ": 4 characters an operator, and " 1 " itself.
    EXPECT_EQ(error(8189), ErrorCode::None);
    EXPECT_EQ(error(8191), ErrorCode::Impossible);
    EXPECT_EQ(shown(Evaluator().evaluer(chain(8190), AngleMode::Degrees).text), "8191");
}

TEST(LongExpressions, depthIsNoDanger) {
    const Text deep = Text(20000, u'(') + u"7" + Text(20000, u')');
    EXPECT_EQ(shown(Evaluator().evaluer(deep, AngleMode::Degrees).text), "7");
    Text nested = u"1";
    for (int i = 0; i < 500; ++i)
        nested = u"(" + nested + u"+1)";
    EXPECT_EQ(shown(Evaluator().evaluer(nested, AngleMode::Degrees).text), "501");
}

TEST(CancelSignal, endsTheEvaluationAtOnce) {
    int asked = 0;
    Hooks hooks;
    hooks.cancelled = [&asked] { return ++asked == 3; };
    for (const Text expression : {u"1 + 2 + 3 + 4 + 5", u"(1 + 2) * (3 + 4) * (5 + 6)"}) {
        asked = 0;
        EXPECT_EQ(Evaluator(hooks).evaluer(expression, AngleMode::Degrees).error, kImpossible);
        EXPECT_EQ(asked, 3);
    }
}

TEST(Locale, changesNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const bool french = std::setlocale(LC_ALL, "fr_FR.UTF-8") != nullptr;
    EXPECT_EQ(shown(Evaluator().evaluer(u"1.5 / 2", AngleMode::Degrees).text), ".75");
    std::setlocale(LC_ALL, before.c_str());
    if (!french)
        GTEST_SKIP() << "no French locale on this system";
}

/// The value of a text as it would be written down and read again.
double asText(double value) {
    return text::leadingNumber(text::numberText(value));
}

/// Random expressions on which school rules and rewriting agree: a sum of products of powers
/// without "-" after "+" and without "/" after "*". Evaluated on the way as plain arithmetic.
class PlainArithmetic {
public:
    explicit PlainArithmetic(unsigned seed) : random_(seed) {}

    struct Sample {
        Text text;
        double value;
    };

    Sample sum(int depth) {
        Sample total = product(depth);
        for (bool minus = pick(2) == 0; pick(2) == 0; minus = minus && pick(2) == 0) {
            const Sample term = product(depth);
            total.text += (minus ? u" - " : u" + ") + term.text;
            total.value = asText(minus ? total.value - term.value : total.value + term.value);
        }
        return total;
    }

private:
    int pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }

    Sample product(int depth) {
        Sample total = factor(depth);
        for (bool divide = pick(2) == 0; pick(3) == 0; divide = false) {
            const Sample next = factor(depth);
            if (divide && next.value == 0)
                break;
            total.text += (divide ? u" / " : u" * ") + next.text;
            total.value = asText(divide ? total.value / next.value : total.value * next.value);
        }
        return total;
    }

    Sample factor(int depth) {
        if (depth > 0 && pick(3) == 0) {
            Sample group = sum(depth - 1);
            return {u"(" + group.text + u")", group.value};
        }
        const double value = pick(1000) / 8.0 - (pick(4) == 0 ? 60 : 0);
        if (value >= 0 && pick(4) == 0)
            return {text::trimmedNumberText(value) + u" ^ 2", asText(value * value)};
        return {text::trimmedNumberText(value), value};
    }

    std::mt19937 random_;
};

TEST(PlainArithmeticAgrees, onThousandsOfExpressions) {
    PlainArithmetic samples(6);
    for (int i = 0; i < 5000; ++i) {
        const auto sample = samples.sum(3);
        const Traced run(sample.text);
        ASSERT_EQ(run.found.error, ErrorCode::None) << shown(sample.text) << '\n' << run.trace;
        const double scale = std::max(1.0, std::abs(sample.value));
        ASSERT_NEAR(text::leadingNumber(run.found.text), sample.value, 1e-7 * scale)
            << shown(sample.text) << '\n'
            << run.trace;
    }
}

TEST(Garbage, endsWithACode) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> any(1, 0x2FF);
    const Text favoured = u"()+-*/^ .0123456789EDLNSIVCOTAGXPQR";
    for (int i = 0; i < 2000; ++i) {
        Text text;
        for (int n = any(random) % 80; n > 0; --n) {
            const int c = any(random);
            text += c % 8 ? favoured[static_cast<std::size_t>(c) % favoured.size()]
                          : static_cast<char16_t>(c);
        }
        const Evaluation found = Evaluator().evaluer(text, AngleMode::Radians);
        EXPECT_LE(static_cast<int>(found.error), 3);
        EXPECT_TRUE(found.error != ErrorCode::None || found.text.find(u' ') == Text::npos);
    }
}

} // namespace
} // namespace calculator
