#include "calculator/functions.h"

#include "calculator/function_table.h"
#include "calculator/gap_text.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace calculator {

namespace {

/// From the start of a function to its argument: the name and the space after it.
constexpr std::size_t kToArgument = kNameLength + 1;

bool startsNumber(char16_t c) {
    return (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
}

/// The value of `function` at the number that `argument` starts with, as text.
std::optional<Text> valueText(const Function& function, TextView argument, AngleMode angles) {
    const double x = text::leadingNumber(argument);
    if (!std::isfinite(x))
        return std::nullopt;
    const double value = function.value(x, angles);
    return std::isfinite(value) ? std::optional(text::trimmedNumberText(value)) : std::nullopt;
}

/// The function that can be evaluated at `position`; null for none. One at the very start is never
/// looked at.
const Function* readyAt(const GapText& text, std::size_t position) {
    const std::size_t argument = position + kToArgument;
    if (position == 0 || argument >= text.size() || !startsNumber(text[argument]))
        return nullptr;
    const char16_t name[] = {text[position], text[position + 1], text[position + 2]};
    return functionAt(TextView(name, kNameLength), 0);
}

/// Position of the ")" or the space that ends an argument; the size of the text when there is none.
std::size_t endOfArgument(const GapText& text, std::size_t argument) {
    std::size_t end = argument + 1;
    while (end < text.size() && text[end] != u')' && text[end] != u' ')
        ++end;
    return end;
}

} // namespace

bool calculfonctions(Text& text, Counters& counters, AngleMode angles) {
    GapText work(text);
    std::size_t i = 1;
    while (i < work.size() && counters.nbfonctions > 0) {
        const Function* const function = readyAt(work, i);
        if (!function) {
            ++i;
            continue;
        }
        const std::size_t argument = i + kToArgument;
        const std::size_t end = endOfArgument(work, argument);
        if (end == work.size())
            return false;
        const auto value = valueText(*function, work.substr(argument, end - argument), angles);
        if (!value)
            return false;
        work.replace(i, end - i, *value);
        --counters.nbfonctions;
        // Only a function whose argument starts in the new value has become ready behind the walk;
        // the leftmost is found from here as it would be from the start.
        i -= std::min(i - 1, kToArgument);
    }
    text = work.text();
    return true;
}

} // namespace calculator
