#include "calculator/calc_command.h"

#include <gtest/gtest.h>

#include <sstream>

namespace calculator {
namespace {

struct Called {
    Called(const CalcOptions& options, const std::string& input = {}) {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        status = runCalc(options, in, out, err);
        written = out.str();
        complained = err.str();
    }
    int status;
    std::string written;
    std::string complained;
};

CalcOptions asked(const char* expression) {
    CalcOptions options;
    options.expression = QString::fromUtf8(expression);
    return options;
}

TEST(CalcCommand, printsTheLineOfTheDisplay) {
    EXPECT_EQ(Called(asked("sin 30 - 1")).written, "-.5\n");
    EXPECT_EQ(Called(asked("sin 30")).written, " .5\n");
    CalcOptions radians = asked("4 * invTAN 1");
    radians.angles = AngleMode::Radians;
    EXPECT_EQ(Called(radians).written, " 3.14159265358979\n");
}

TEST(CalcCommand, aFaultIsAMessageAndAStatus) {
    const Called parentheses(asked("(1"));
    EXPECT_EQ(parentheses.status, 2);
    EXPECT_EQ(parentheses.written, "");
    EXPECT_EQ(parentheses.complained, "Erreur saisie: revoir les parenthèses\n");
    const Called overflow(asked("1E999"));
    EXPECT_EQ(overflow.status, 1);
    EXPECT_EQ(overflow.complained, "Dépassement de capacité\n");
}

TEST(CalcCommand, aBatchAnswersEveryLine) {
    CalcOptions options;
    options.batch = true;
    const std::string tooLong(3 << 20, '1');
    const Called called(options, "1+1\r\n\n2 *  * 3\n" + tooLong + "\n1E999\n1/0\n7");
    EXPECT_EQ(called.status, 0);
    EXPECT_EQ(called.written, "0\t 2\n0\t 0\n"
                              "3\tErreur saisie: incompréhension sur opérateurs: ^ * / + -\n"
                              "1\tCalcul impossible\n1\tDépassement de capacité\n"
                              "1\tCalcul impossible\n0\t 7\n");
}

TEST(CalcCommand, aTraceShowsEveryStep) {
    CalcOptions options = asked("(2+3)*sqr 4");
    options.trace = true;
    EXPECT_EQ(Called(options).written, "simplifier\t (2 + 3) * SQR 4 \n"
                                       "calculfonctions\t (2 + 3) * 2 \n"
                                       "simplifier\t (2 + 3) * 2 \n"
                                       "calculoperateurs\t 5 \n"
                                       "calculparentheses\t 5 * 2 \n"
                                       "calculoperateurs\t 10 \n"
                                       " 10\n");
    options.batch = true;
    EXPECT_EQ(Called(options).status, 64);
}

struct Shown {
    double value;
    const char16_t* expected;
};

class Scientific : public testing::TestWithParam<Shown> {};

TEST_P(Scientific, followsThePattern) {
    EXPECT_EQ(scientificText(GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Values, Scientific,
                         testing::Values(Shown{12345, u"1.2345E+04"}, Shown{5, u"5.E+00"},
                                         Shown{0, u"0.E+00"}, Shown{-.05, u"-5.E-02"},
                                         Shown{1.23456789, u"1.2345679E+00"},
                                         Shown{1.00000005, u"1.0000001E+00"},
                                         Shown{99999999.5, u"1.E+08"},
                                         Shown{1.95e-300, u"1.95E-300"}));

} // namespace
} // namespace calculator
