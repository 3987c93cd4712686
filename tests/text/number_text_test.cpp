#include "support/french_locale.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <random>
#include <string>

namespace {

struct Row {
    double value;
    const char16_t* expected;
};

class NumberText : public testing::TestWithParam<Row> {};

TEST_P(NumberText, isAsTheTableSays) {
    EXPECT_EQ(text::numberText(GetParam().value), GetParam().expected);
}

TEST_P(NumberText, withoutTheSpaceIsTheSame) {
    const std::u16string whole = text::numberText(GetParam().value);
    EXPECT_EQ(text::trimmedNumberText(GetParam().value),
              whole.front() == u' ' ? whole.substr(1) : whole);
}

INSTANTIATE_TEST_SUITE_P(SignsAndZeros, NumberText,
                         testing::Values(Row{0, u" 0"}, Row{-0.0, u" 0"}, Row{42, u" 42"},
                                         Row{-42, u"-42"}, Row{.5, u" .5"}, Row{-.5, u"-.5"},
                                         Row{.01, u" .01"}, Row{1.5, u" 1.5"}, Row{100, u" 100"},
                                         Row{10000000000, u" 10000000000"}));

INSTANTIATE_TEST_SUITE_P(FifteenDigits, NumberText,
                         testing::Values(Row{.1 + .2, u" .3"}, Row{1.0 / 3, u" .333333333333333"},
                                         Row{2.0 / 3, u" .666666666666667"},
                                         Row{4 * std::atan(1.0), u" 3.14159265358979"},
                                         Row{99999.99999999999, u" 100000"},
                                         Row{1234567890123.456, u" 1234567890123.46"}));

INSTANTIATE_TEST_SUITE_P(LargeSwitchOver, NumberText,
                         testing::Values(Row{123456789012345, u" 123456789012345"},
                                         Row{999999999999999, u" 999999999999999"},
                                         Row{999999999999999.4, u" 999999999999999"},
                                         Row{999999999999999.6, u" 1E+15"}, Row{1e15, u" 1E+15"},
                                         Row{-1e15, u"-1E+15"},
                                         Row{1234567890123456, u" 1.23456789012346E+15"},
                                         Row{1e20, u" 1E+20"}, Row{1e99, u" 1E+99"},
                                         Row{1e100, u" 1E+100"},
                                         Row{DBL_MAX, u" 1.79769313486232E+308"}));

// Plain while 15 decimals are enough, and never below a millionth.
INSTANTIATE_TEST_SUITE_P(SmallSwitchOver, NumberText,
                         testing::Values(Row{.123456789012345, u" .123456789012345"},
                                         Row{1.0 / 30, u" 3.33333333333333E-02"},
                                         Row{.0333333333333333, u" 3.33333333333333E-02"},
                                         Row{.033333333333333, u" .033333333333333"},
                                         Row{-.00012345678901, u"-.00012345678901"},
                                         Row{-.000123456789012, u"-.000123456789012"},
                                         Row{.0001234567890123, u" 1.234567890123E-04"},
                                         Row{.00001, u" .00001"}, Row{.000001, u" .000001"},
                                         Row{.00000999, u" .00000999"}, Row{.0000009, u" 9E-07"},
                                         Row{1.5e-7, u" 1.5E-07"}, Row{-1e-100, u"-1E-100"},
                                         Row{DBL_TRUE_MIN, u" 4.94065645841247E-324"}));

TEST(NumberTextAnywhere, readsBackToFifteenDigits) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (int i = 0; i < 5000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, exponent(random) / (i % 2 ? 1 : 20));
        const std::u16string shown = text::numberText(value);
        const double back = text::leadingNumber(shown);
        EXPECT_NEAR(back, value, std::abs(value) * 5.1e-15);
        EXPECT_EQ(text::numberText(back), shown);
    }
}

TEST(NumberTextAnywhere, doesNotFollowTheLocale) {
    const test_support::FrenchLocale french;
    EXPECT_EQ(text::numberText(1234.5), u" 1234.5");
    EXPECT_EQ(text::leadingNumber(u"1234.5"), 1234.5);
    EXPECT_EQ(text::leadingNumber(u"1234,5"), 1234);
}

} // namespace
