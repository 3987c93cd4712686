#include "calculator/functions.h"

#include "calculator/gap_text.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <algorithm>
#include <cmath>

namespace calculator {

namespace {

/// From the start of a function to its argument: the name and the space after it.
constexpr std::size_t kToArgument = kNameLength + 1;

std::optional<double> finite(double value) {
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// Pi is 4 times this everywhere; the order of the factors below decides the last digit.
double quarterPi() {
    return std::atan(1.0);
}

double toRadians(double x, AngleMode angles) {
    return angles == AngleMode::Radians ? x : x * 4 * quarterPi() / 180;
}

std::optional<double> fromRadians(std::optional<double> x, AngleMode angles) {
    if (!x || angles == AngleMode::Radians)
        return x;
    return *x * 180 / (4 * quarterPi());
}

std::optional<double> arcSine(double x) {
    if (x == 1)
        return 2 * quarterPi();
    if (x == -1)
        return -2 * quarterPi();
    const double root = std::sqrt(1 - x * x);
    if (std::isnan(root) || root == 0)
        return std::nullopt;
    return std::atan(x / root);
}

std::optional<double> arcCosine(double x) {
    const auto sine = arcSine(x);
    return sine ? std::optional(2 * quarterPi() - *sine) : std::nullopt;
}

std::optional<double> logarithm(double x) {
    return x > 0 ? finite(std::log(x)) : std::nullopt;
}

bool startsNumber(char16_t c) {
    return (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
}

/// The value of `function` at the number that `argument` starts with, as text.
std::optional<Text> valueText(Function function, TextView argument, AngleMode angles) {
    const double x = text::leadingNumber(argument);
    const auto value = std::isfinite(x) ? valueOf(function, x, angles) : std::nullopt;
    return value ? std::optional(text::trimmedNumberText(*value)) : std::nullopt;
}

/// The function that can be evaluated at `position`. One at the very start is never looked at.
std::optional<Function> readyAt(const GapText& text, std::size_t position) {
    const std::size_t argument = position + kToArgument;
    if (position == 0 || argument >= text.size() || !startsNumber(text[argument]))
        return std::nullopt;
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

std::optional<double> valueOf(Function function, double x, AngleMode angles) {
    switch (function) {
    case Function::Sqr:
        return x < 0 ? std::nullopt : finite(std::sqrt(x));
    case Function::Exp:
        return finite(std::exp(x));
    case Function::Lon:
        return logarithm(x);
    case Function::Log: {
        const auto natural = logarithm(x);
        return natural ? std::optional(*natural / std::log(10.0)) : std::nullopt;
    }
    case Function::Sin:
        return finite(std::sin(toRadians(x, angles)));
    case Function::Cos:
        return finite(std::cos(toRadians(x, angles)));
    case Function::Tan:
        return finite(std::tan(toRadians(x, angles)));
    case Function::Isi:
        return fromRadians(arcSine(x), angles);
    case Function::Ico:
        return fromRadians(arcCosine(x), angles);
    case Function::Ita:
        return fromRadians(std::atan(x), angles);
    }
    return std::nullopt;
}

bool calculfonctions(Text& text, Counters& counters, AngleMode angles) {
    GapText work(text);
    std::size_t i = 1;
    while (i < work.size() && counters.nbfonctions > 0) {
        const auto function = readyAt(work, i);
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
