#include "text/numeric_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

struct Row {
    const char16_t* input;
    double expected;
};

void PrintTo(const Row& row, std::ostream* out) {
    for (const char16_t* c = row.input; *c; ++c)
        *out << static_cast<char>(*c < 0x80 ? *c : '?');
}

class LeadingNumber : public testing::TestWithParam<Row> {};

TEST_P(LeadingNumber, readsTheLongestNumericPrefix) {
    EXPECT_EQ(text::leadingNumber(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Plain, LeadingNumber,
                         testing::Values(Row{u"12", 12}, Row{u"-05", -5}, Row{u"+7", 7},
                                         Row{u"1.50", 1.5}, Row{u".5", .5}, Row{u"-.5", -.5},
                                         Row{u"5.", 5}, Row{u"1.2.3", 1.2}, Row{u"0012", 12}));

INSTANTIATE_TEST_SUITE_P(BlanksBeforeTheEnd, LeadingNumber,
                         testing::Values(Row{u"  12", 12}, Row{u"1 2", 12}, Row{u"- 5", -5},
                                         Row{u"\t1 . 5", 1.5}, Row{u"1 E 3", 1000}));

INSTANTIATE_TEST_SUITE_P(Exponents, LeadingNumber,
                         testing::Values(Row{u"1E3", 1000}, Row{u"1d-2", .01}, Row{u"2e+1x", 20},
                                         Row{u"3E", 3}, Row{u"3E-", 3}, Row{u"4Ex", 4},
                                         Row{u"1E-999", 0}));

INSTANTIATE_TEST_SUITE_P(NoNumber, LeadingNumber,
                         testing::Values(Row{u"", 0}, Row{u"I9", 0}, Row{u".", 0}, Row{u"-", 0},
                                         Row{u"EAU", 0}, Row{u"--1", 0}, Row{u"E5", 0}));

TEST(LeadingNumberRange, tooLargeIsInfinite) {
    EXPECT_TRUE(std::isinf(text::leadingNumber(u"1E999")));
    EXPECT_TRUE(std::isinf(text::leadingNumber(std::u16string(5000, u'9'))));
}

} // namespace
