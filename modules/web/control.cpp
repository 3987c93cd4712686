#include "web/control.h"

#include "common/words.h"

#include <utility>

namespace modules {

Control heading(std::u16string words) {
    return {.kind = Control::Kind::Heading, .name = std::move(words)};
}

Control note(std::u16string words) {
    return {.kind = Control::Kind::Note, .name = std::move(words)};
}

Control button(std::u16string words, std::u16string hint, bool isEnabled,
               std::function<void()> press) {
    return {.kind = Control::Kind::Button,
            .name = std::move(words),
            .hint = std::move(hint),
            .isEnabled = isEnabled,
            .change = [press = std::move(press)](double) { press(); }};
}

Control numberControl(const common::Number& number, double value, bool isEnabled,
                      std::function<void(double)> set) {
    return {.kind = Control::Kind::Number,
            .name = number.name,
            .formula = common::filled(u"\\text{%1 }%2", {number.name, number.symbol}),
            .isEnabled = isEnabled,
            .number = number,
            .value = value,
            .change = std::move(set)};
}

} // namespace modules
