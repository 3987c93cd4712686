// Expressions of the calculator: typed key by key, pasted, and given to the course tool.

#include "calculator/calc_command.h"
#include "calculator/key_rules.h"
#include "calculator/pasted_keys.h"
#include "formats/all.h"
#include "text/utf8.h"

#include <sstream>

namespace fuzz {

namespace {

class Display : public calculator::CalculatorView {
public:
    void showText(calculator::TextView text) override { shown = text; }
    void beep() override {}
    void breathe() override {}
    calculator::Text shown;
};

/// What stands in the display is what was shown last.
void typeAndPaste(calculator::TextView expression) {
    calculator::Memory memory;
    Display display;
    calculator::KeyRules rules(memory, display, u',');
    for (const char16_t c : expression)
        rules.type(c);
    for (const calculator::Key* key : calculator::pastedKeys(expression).keys)
        rules.press(*key);
    rules.press(calculator::keyNamed(u"EXE"));
    require(rules.display() == display.shown, "the display shows what the rules say");
}

void readOne(Input input) {
    const calculator::Text expression = text::toUtf16(textOf(input));
    for (const auto angles : {calculator::AngleMode::Degrees, calculator::AngleMode::Radians}) {
        const auto answer =
            calculator::answerTo(expression, angles, calculator::Format::Scientific);
        require(!answer.line.empty(), "every expression gets an answer");
        require(calculator::statusOf(answer) <= 3, "an answer has one of the statuses");
    }
    typeAndPaste(expression);
    std::istringstream lines{std::string(textOf(input))};
    std::ostringstream out;
    std::ostringstream err;
    calculator::runCalc({.expression = {}, .batch = true}, lines, out, err);
}

} // namespace

const Format kCalculation{
    "calculation",
    readOne,
    {{"fuzz/corpus/calculation", ""}},
    {"(",    ")",     "+",     "-",    "*",    "/",    "^",    " ",        "SIN ",
     "COS ", "TAN ",  "ISI ",  "ITA ", "LOG ", "LON ", "EXP ", "SQR ",     "sin ",
     "E",    "E+308", "E-400", "1",    "0",    ".",    ",",    "99999999", "√",
     "π",    "²",     "×",     "÷",    "−",    "\n",   "--",   "invSIN "},
    2000,
};

} // namespace fuzz
