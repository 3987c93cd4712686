// The evaluator beside a plain one that follows every rule to the letter, and beside arithmetic.

#include "literal_rewriting.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace calculator::test {
namespace {

class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(engine_); }
    bool oneIn(int chances) { return below(chances) == 0; }
    const Text& of(const std::vector<Text>& pieces) {
        return pieces[static_cast<std::size_t>(below(static_cast<int>(pieces.size())))];
    }

private:
    std::mt19937 engine_;
};

void expectSame(const Text& expression) {
    for (const AngleMode angles : {AngleMode::Degrees, AngleMode::Radians}) {
        const Evaluation expected = evaluateLiterally(expression, angles);
        const Evaluation found = Evaluator().evaluer(expression, angles);
        ASSERT_EQ(found.error, expected.error) << testing::PrintToString(expression);
        if (expected.error == ErrorCode::None) {
            ASSERT_EQ(found.text, expected.text) << testing::PrintToString(expression);
        }
    }
}

/// The same with as many ")" as "(", in an order that could be.
Text balanced(const Text& text) {
    Text out;
    std::size_t open = 0;
    for (const char16_t c : text) {
        if (c == u')' && open == 0)
            continue;
        open += c == u'(';
        open -= c == u')';
        out += c;
    }
    return out.append(open, u')');
}

/// Pieces of which texts are put together in any order, sound or not.
class AgainstLiteralRewriting : public testing::TestWithParam<std::vector<Text>> {};

TEST_P(AgainstLiteralRewriting, givesTheSame) {
    Random random(2);
    for (int i = 0; i < 150; ++i) {
        Text text;
        for (int left = 1 + random.below(14); left > 0; --left)
            text += random.of(GetParam());
        expectSame(text);
        expectSame(balanced(text));
    }
}

INSTANTIATE_TEST_SUITE_P(
    PiecesInAnyOrder, AgainstLiteralRewriting,
    testing::Values(
        // what the keys write
        std::vector<Text>{u"1",   u"2",    u"3.5",  u"40",   u".5",      u" + ", u" - ",
                          u"-",   u" * ",  u" / ",  u" ^ ",  u"(",       u")",   u"sin ",
                          u"ln ", u"log ", u"SQR ", u"exp ", u"invSIN ", u"E-3", u"E+20"},
        // signs and parentheses
        std::vector<Text>{u"+", u"-", u"(", u")", u"(", u")", u"1", u"2.", u"*", u"^"},
        // letters that almost are names
        std::vector<Text>{u"I", u"N", u"V", u"S", u"L", u"O", u"G", u"E", u"D", u"X", u"P", u"7",
                          u"INV", u"LN", u"-", u"+", u"*", u" ", u"(5)"},
        // groups in groups, values with exponents and values that join their neighbours
        std::vector<Text>{u"(", u"(", u"((", u")", u"))", u"(1+2)", u"(3-5)", u"(2E+3)", u"()",
                          u"1E-5", u"7", u"+", u"-", u"*", u"/", u"(+", u"-("},
        // anything
        std::vector<Text>{u"\t", u"\n", u",", u"%", u"\x1", u"É", u"π", u"Ÿ", u"\xD83D", u"\xFFFF",
                          u"1", u"2 3", u"d", u"lnln", u"sin", u")(", u"*", u"-", u"1E999"}));

TEST(AgainstLiteralRewriting, negativeGroupsAfterEverySign) {
    for (const Text before : {u"", u"-", u"+", u"7-", u"7+", u"7*", u"(+", u"(-", u"sin +", u"2E+",
                              u"2E-", u"5+(", u"5-((", u"3", u"7*+(-"}) {
        Text after;
        for (const char16_t c : before)
            after += c == u'(' ? u")" : u"";
        for (const Text group : {u"(1-5)", u"(2E+20*-3)", u"((1-5))", u"(5-1)"})
            expectSame(before + group + after + u"+4");
    }
}

/// Random expressions on which school rules and rewriting agree: a sum of products of powers and
/// roots without "-" after "+" and without "/" after "*". Counted on the way as plain arithmetic,
/// each value as it would be written down and read again.
class PlainArithmetic {
public:
    struct Sample {
        Text text;
        double value;
    };

    Sample sum(int depth) {
        Sample total = product(depth);
        for (bool minus = random_.oneIn(2); random_.oneIn(2); minus = minus && random_.oneIn(2))
            append(total, product(depth), minus ? u'-' : u'+');
        return total;
    }

private:
    Sample product(int depth) {
        Sample total = factor(depth);
        for (bool divide = random_.oneIn(2); random_.oneIn(3); divide = false) {
            const Sample next = factor(depth);
            if (!divide || next.value != 0)
                append(total, next, divide ? u'/' : u'*');
        }
        return total;
    }

    Sample factor(int depth) {
        if (depth > 0 && random_.oneIn(3)) {
            const Sample group = sum(depth - 1);
            const Text inParentheses = u"(" + group.text + u")";
            if (group.value < 0 || random_.oneIn(2))
                return {inParentheses, group.value};
            return {u"SQR " + inParentheses, asWritten(std::sqrt(group.value))};
        }
        const double value = random_.below(1000) / 8.0 - (random_.oneIn(4) ? 60 : 0);
        Sample number{text::trimmedNumberText(value), value};
        if (value >= 0 && random_.oneIn(4))
            append(number, {u"2", 2}, u'^');
        return number;
    }

    static void append(Sample& total, const Sample& next, char16_t op) {
        total.text += Text{u' ', op, u' '} + next.text;
        const double a = total.value;
        const double b = next.value;
        total.value = asWritten(op == u'+'   ? a + b
                                : op == u'-' ? a - b
                                : op == u'*' ? a * b
                                : op == u'/' ? a / b
                                             : std::pow(a, b));
    }

    static double asWritten(double value) { return text::leadingNumber(text::numberText(value)); }

    Random random_{6};
};

TEST(WellFormed, agreesWithPlainArithmetic) {
    PlainArithmetic samples;
    for (int i = 0; i < 5000; ++i) {
        const auto sample = samples.sum(3);
        const Evaluation found = Evaluator().evaluer(sample.text, AngleMode::Degrees);
        ASSERT_EQ(found.error, ErrorCode::None) << testing::PrintToString(sample.text);
        ASSERT_NEAR(text::leadingNumber(found.text), sample.value,
                    1e-7 * std::max(1.0, std::abs(sample.value)))
            << testing::PrintToString(sample.text);
    }
}

TEST(WellFormed, withAnyOperatorsAgreesWithLiteralRewriting) {
    PlainArithmetic samples;
    Random random(7);
    for (int i = 0; i < 200; ++i) {
        Text text = samples.sum(3).text;
        for (std::size_t at = 1; at + 1 < text.size(); ++at)
            if (text[at - 1] == u' ' && text[at + 1] == u' ')
                text[at] = random.of({u"+", u"-", u"*", u"/", u"^"}).front();
        expectSame(text);
    }
}

} // namespace
} // namespace calculator::test
