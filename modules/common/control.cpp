#include "common/control.h"

#include "common/words.h"

#include <utility>

namespace common {

Control headingControl(std::u16string words) {
    return {.kind = Control::Kind::Heading, .name = std::move(words)};
}

Control noteControl(std::u16string words) {
    return {.kind = Control::Kind::Note, .name = std::move(words)};
}

Control buttonControl(std::u16string words, std::u16string hint, bool isEnabled,
                      std::function<void()> press) {
    return {.kind = Control::Kind::Button,
            .name = std::move(words),
            .hint = std::move(hint),
            .isEnabled = isEnabled,
            .change = [press = std::move(press)](double) { press(); }};
}

Control numberControl(const Number& number, double value, bool isEnabled,
                      std::function<void(double)> set) {
    return {.kind = Control::Kind::Number,
            .name = number.name,
            .formula = filled(u"\\text{%1 }%2", {number.name, number.symbol}),
            .isEnabled = isEnabled,
            .number = number,
            .value = value,
            .change = std::move(set)};
}

Control choiceControl(Control::Kind kind, std::u16string name, std::vector<Option> options,
                      int taken, bool isEnabled, std::function<void(std::size_t)> choose) {
    return {.kind = kind,
            .name = std::move(name),
            .isEnabled = isEnabled,
            .value = static_cast<double>(taken),
            .options = std::move(options),
            .change = [choose = std::move(choose)](double which) {
                choose(static_cast<std::size_t>(which));
            }};
}

Control shownIf(bool isShown, Control control) {
    control.isShown = isShown;
    return control;
}

Control inPlaceOfLast(Control control) {
    control.isInPlaceOfLast = true;
    return control;
}

Control atFoot(Control control) {
    control.isAtFoot = true;
    return control;
}

std::u16string formulaOf(const Option& option) {
    return option.formula.empty() ? filled(u"\\text{%1}", {option.words}) : option.formula;
}

} // namespace common
