#include "literal_rewriting.h"

#include <QString>

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace calculator::test {
namespace {

std::string shown(TextView text) {
    return QString::fromStdU16String(Text(text)).toStdString();
}

void expectSame(const Text& expression) {
    for (const AngleMode angles : {AngleMode::Degrees, AngleMode::Radians}) {
        const Evaluation expected = evaluateLiterally(expression, angles);
        const Evaluation found = Evaluator().evaluer(expression, angles);
        ASSERT_EQ(found.error, expected.error) << shown(expression);
        if (expected.error == ErrorCode::None) {
            ASSERT_EQ(shown(found.text), shown(expected.text)) << shown(expression);
        }
    }
}

Text joined(std::mt19937& random, const std::vector<Text>& pieces, std::size_t most) {
    std::uniform_int_distribution<std::size_t> count(1, most);
    std::uniform_int_distribution<std::size_t> piece(0, pieces.size() - 1);
    Text text;
    for (std::size_t left = count(random); left > 0; --left)
        text += pieces[piece(random)];
    return text;
}

TEST(AgainstLiteralRewriting, keysInAnyOrder) {
    const std::vector<Text> keys = {u"1",       u"2",   u"3.5",  u"40",  u".5",   u" + ",
                                    u" + ",     u" - ", u"-",    u" * ", u" / ",  u" ^ ",
                                    u"(",       u")",   u"sin ", u"ln ", u"log ", u"SQR ",
                                    u"invSIN ", u"E-3", u"E",    u"0",   u"exp "};
    std::mt19937 random(2);
    for (int i = 0; i < 200; ++i)
        expectSame(joined(random, keys, 12));
}

TEST(AgainstLiteralRewriting, signsAndParentheses) {
    const std::vector<Text> keys = {u"+", u"-", u"(", u")", u"(", u")", u"1", u"2.", u"*", u"^"};
    std::mt19937 random(3);
    for (int i = 0; i < 200; ++i)
        expectSame(joined(random, keys, 16));
}

TEST(AgainstLiteralRewriting, lettersThatAlmostAreNames) {
    const std::vector<Text> keys = {u"I", u"N",   u"V",  u"S", u"L", u"O", u"G", u"E", u"D",  u"X",
                                    u"P", u"INV", u"LN", u"7", u"-", u"+", u"*", u" ", u"(5)"};
    std::mt19937 random(4);
    for (int i = 0; i < 200; ++i)
        expectSame(joined(random, keys, 12));
}

/// A well-formed expression: operands that are numbers, groups or functions.
Text wellFormed(std::mt19937& random, int depth) {
    static const std::vector<Text> operators = {u" + ", u" - ", u" * ", u" / ", u" ^ "};
    static const std::vector<Text> functions = {u"sin ", u"cos ", u"exp ", u"SQR ", u"invTAN "};
    const auto pick = [&random](int below) {
        return std::uniform_int_distribution<int>(0, below - 1)(random);
    };
    Text text;
    for (int operands = 1 + pick(4); operands > 0; --operands) {
        const int kind = depth > 0 ? pick(5) : 0;
        if (kind == 3)
            text += functions[static_cast<std::size_t>(pick(5))];
        if (kind >= 3)
            text += u"(" + wellFormed(random, depth - 1) + u")";
        else if (kind == 2)
            text += functions[static_cast<std::size_t>(pick(5))] +
                    QString::number(pick(9)).toStdU16String();
        else
            text += (pick(4) == 0 ? u"-" : u"") + QString::number(pick(100) / 8.0).toStdU16String();
        if (operands > 1)
            text += operators[static_cast<std::size_t>(pick(5))];
    }
    return text;
}

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

TEST(AgainstLiteralRewriting, wellFormedExpressions) {
    std::mt19937 random(5);
    for (int i = 0; i < 60; ++i)
        expectSame(wellFormed(random, 3));
}

} // namespace
} // namespace calculator::test
