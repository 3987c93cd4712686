// The calculator as JavaScript presses its keys. One calculator lives as long as the program; its
// memory register outlives closing, as in the window.

#include "browser/exchange.h"
#include "calculator/key_layout.h"
#include "calculator/key_rules.h"
#include "calculator/pasted_keys.h"

#include <utility>

namespace {

using browser::give;
using browser::takenText;

/// Nobody can press anything during an evaluation: the browser waits.
class Display : public calculator::CalculatorView {
public:
    void showText(calculator::TextView) override {}
    void beep() override { ++beeps; }
    void breathe() override {}

    int beeps = 0;
};

Display display;
calculator::Memory memory;
calculator::KeyRules rules(memory, display, u',');

/// Gives what the display shows, and beeps since the last call before it.
std::size_t giveDisplay() {
    const int beeps = std::exchange(display.beeps, 0);
    return give(browser::decimal(beeps) + browser::kFieldEnd + rules.display());
}

calculator::AngleMode angleMode(int degrees) {
    return degrees ? calculator::AngleMode::Degrees : calculator::AngleMode::Radians;
}

calculator::Format format(int scientific) {
    return scientific ? calculator::Format::Scientific : calculator::Format::Standard;
}

} // namespace

/// Evaluates an expression as the course tool does: error code, then whether a message, then it.
ORVALENTE_EXPORTED(calc) std::size_t calc(std::size_t units, int degrees, int scientific) {
    const calculator::Answer answer =
        calculator::answerTo(takenText(units), angleMode(degrees), format(scientific));
    return give(browser::decimal(calculator::statusOf(answer)) + browser::kFieldEnd +
                (answer.isMessage ? u"1" : u"0") + browser::kFieldEnd + answer.line);
}

/// A record for each key, in the order of Tab: name, caption, tooltip, x, y, width, height, style
/// (0 function, 1 digit, 2 operator, 3 main), size of the caption in pixels, whether in a serif.
ORVALENTE_EXPORTED(calculatorKeys) std::size_t calculatorKeys() {
    std::u16string all;
    for (const calculator::KeyPlace& place : calculator::keyLayout()) {
        const calculator::Key& key = calculator::keyNamed(place.name);
        all.append(key.name).append(1, browser::kFieldEnd);
        all.append(key.caption).append(1, browser::kFieldEnd);
        all.append(key.tooltip);
        for (const int number : {place.x, place.y, place.width, place.height,
                                 static_cast<int>(place.style), place.captionPx, int{place.serif}})
            all.append(1, browser::kFieldEnd).append(browser::decimal(number));
        all += browser::kRecordEnd;
    }
    return give(all);
}

/// To be called when the calculator opens; gives the display, as all that follow.
ORVALENTE_EXPORTED(calculatorOpen) std::size_t calculatorOpen() {
    rules.load();
    return giveDisplay();
}

/// Presses the key of that name; there may be none.
ORVALENTE_EXPORTED(calculatorPress) std::size_t calculatorPress(std::size_t units) {
    const std::u16string_view name = takenText(units);
    for (const calculator::Key& key : calculator::keypad())
        if (key.name == name) {
            rules.press(key);
            break;
        }
    return giveDisplay();
}

/// Presses the key that a typed character stands for; there may be none.
ORVALENTE_EXPORTED(calculatorType) std::size_t calculatorType(char16_t character) {
    rules.type(character);
    return giveDisplay();
}

/// Presses the keys of a text from elsewhere; the number before the display is 1 when it ended at
/// a comma.
ORVALENTE_EXPORTED(calculatorPaste) std::size_t calculatorPaste(std::size_t units) {
    const calculator::PastedKeys pasted = calculator::pastedKeys(std::u16string(takenText(units)));
    for (const calculator::Key* key : pasted.keys)
        rules.press(*key);
    display.beeps = 0;
    return give((pasted.endedAtComma ? u"1" : u"0") + (browser::kFieldEnd + rules.display()));
}

ORVALENTE_EXPORTED(calculatorOptions) std::size_t calculatorOptions(int degrees, int scientific) {
    rules.setAngles(angleMode(degrees));
    rules.setFormat(format(scientific));
    return giveDisplay();
}
