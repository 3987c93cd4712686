// Whatever asks the table of the functions finds every one of them there.

#include "calculator/checks.h"
#include "calculator/evaluator.h"
#include "calculator/function_table.h"
#include "calculator/key_layout.h"
#include "calculator/keypad.h"
#include "calculator/normalise.h"
#include "jet/unicode.h"
#include "text/number_text.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace calculator {
namespace {

using testing::HasSubstr;

class EveryFunction : public testing::TestWithParam<Function> {
protected:
    const Function& function() const { return GetParam(); }

    /// Typed before 1, where all of them have a value.
    Text ofOne() const { return Text(function().typed) + u"1"; }

    std::string caption() const {
        Text caption(function().key.caption);
        std::erase(caption, u'&');
        return jet::toUtf8(caption);
    }
};

TEST_P(EveryFunction, isReadAsItIsTyped) {
    EXPECT_EQ(simplifier(ofOne()), u" " + Text(function().name) + u" 1 ");
    EXPECT_EQ(compter(simplifier(ofOne()))->nbfonctions, 1);
}

TEST_P(EveryFunction, isCalculatedAloneAndInGroups) {
    for (const AngleMode angles : {AngleMode::Degrees, AngleMode::Radians}) {
        const Text value = text::trimmedNumberText(function().value(1, angles));
        EXPECT_EQ(Evaluator().evaluer(ofOne(), angles).text, value);
        EXPECT_EQ(Evaluator().evaluer(u"((" + ofOne() + u"))", angles).text, value);
    }
}

TEST_P(EveryFunction, hasItsKey) {
    const FunctionKey& key = function().key;
    const auto named = [&key](const auto& row) { return row.name == key.control; };
    ASSERT_EQ(std::ranges::count_if(keypad(), named), 1);
    EXPECT_EQ(keyNamed(key.control).appends, function().typed);
    EXPECT_EQ(std::ranges::count_if(keyLayout(), named), 1);
    EXPECT_FALSE(key.caption.empty() || key.tooltip.empty());
}

std::string contents(const char* file) {
    std::ifstream in(std::string(SOURCES) + "/" + file);
    EXPECT_TRUE(in) << file;
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST_P(EveryFunction, standsInTheManualAndTheHelp) {
    Text typed(function().typed);
    typed.pop_back();
    EXPECT_THAT(contents("docs/calculatrice.md"),
                HasSubstr("| " + caption() + " | `" + jet::toUtf8(typed) + "` | " +
                          jet::toUtf8(function().key.tooltip) + " |\n"));
    EXPECT_THAT(contents("src/help/manual/calculatrice.html"),
                HasSubstr("<tr><td><b class=\"bouton\">" + caption() + "</b></td><td><code>" +
                          jet::toUtf8(typed) + "</code></td><td>" +
                          jet::toUtf8(function().key.tooltip) + "</td></tr>\n"));
}

INSTANTIATE_TEST_SUITE_P(Table, EveryFunction,
                         testing::ValuesIn(functions().begin(), functions().end()),
                         [](const auto& row) { return jet::toUtf8(row.param.name); });

} // namespace
} // namespace calculator
