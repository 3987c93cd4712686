// Whatever asks the table of the functions finds every one of them there.

#include "calculator/checks.h"
#include "calculator/evaluator.h"
#include "calculator/function_table.h"
#include "calculator/key_layout.h"
#include "calculator/keypad.h"
#include "calculator/normalise.h"
#include "text/number_text.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>

namespace calculator {

void PrintTo(const Function& function, std::ostream* out) {
    *out << text::toUtf8(function.name);
}

namespace {

class EveryFunction : public testing::TestWithParam<Function> {
protected:
    const Function& function() const { return GetParam(); }

    /// Typed before 1, where all of them have a value.
    Text ofOne() const { return Text(function().typed) + u"1"; }

    std::string caption() const {
        Text caption(function().key.caption);
        std::erase(caption, u'&');
        return text::toUtf8(caption);
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

testing::AssertionResult hasLine(const char* file, const std::string& line) {
    std::ifstream in(std::string(SOURCES) + "/" + file);
    for (std::string read; std::getline(in, read);)
        if (read == line)
            return testing::AssertionSuccess();
    return testing::AssertionFailure() << file << " has no line\n" << line;
}

TEST_P(EveryFunction, standsInTheManualAndTheHelp) {
    Text withoutSpace(function().typed);
    withoutSpace.pop_back();
    const std::string typed = text::toUtf8(withoutSpace);
    const std::string meaning = text::toUtf8(function().key.tooltip);
    EXPECT_TRUE(hasLine("docs/calculatrice.md",
                        "| " + caption() + " | `" + typed + "` | " + meaning + " |"));
    EXPECT_TRUE(hasLine("src/help/manual/calculatrice.html",
                        "<tr><td><b class=\"bouton\">" + caption() + "</b></td><td><code>" + typed +
                            "</code></td><td>" + meaning + "</td></tr>"));
}

INSTANTIATE_TEST_SUITE_P(Table, EveryFunction,
                         testing::ValuesIn(functions().begin(), functions().end()),
                         [](const auto& row) { return text::toUtf8(row.param.name); });

} // namespace
} // namespace calculator
