#include "calculator/result_text.h"

#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

namespace calculator {

namespace {

/// Digits of the pattern, the one before the point included.
constexpr std::size_t kPatternDigits = 8;

struct Decimal {
    std::string digits; ///< the first stands before the point
    int exponent = 0;
};

/// Read back from the standard text, which has every digit that counts: "12.5", ".05", "1.5E-07".
Decimal decimalOf(double magnitude) {
    const Text standard = text::trimmedNumberText(magnitude);
    const std::string written(standard.begin(), standard.end());
    const std::string mantissa = written.substr(0, written.find('E'));
    Decimal decimal;
    std::ranges::remove_copy(mantissa, std::back_inserter(decimal.digits), '.');
    decimal.exponent = static_cast<int>(std::min(mantissa.find('.'), mantissa.size())) - 1;
    const std::size_t zeros =
        std::min(decimal.digits.find_first_not_of('0'), decimal.digits.size() - 1);
    decimal.digits.erase(0, zeros);
    decimal.exponent -= static_cast<int>(zeros);
    if (mantissa.size() < written.size())
        decimal.exponent += std::stoi(written.substr(mantissa.size() + 1));
    return decimal;
}

/// To the digits of the pattern, halves upwards; 9.99999995 becomes 1 and the next exponent.
void roundToPattern(Decimal& decimal) {
    if (decimal.digits.size() <= kPatternDigits)
        return;
    const bool up = decimal.digits[kPatternDigits] >= '5';
    decimal.digits.resize(kPatternDigits);
    if (!up)
        return;
    const std::size_t last = decimal.digits.find_last_not_of('9');
    if (last == std::string::npos) {
        decimal.digits.assign(1, '1');
        ++decimal.exponent;
        return;
    }
    ++decimal.digits[last];
    decimal.digits.resize(last + 1);
}

Text wide(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

} // namespace

Text scientificText(double value, char16_t point) {
    Decimal decimal = decimalOf(std::abs(value));
    roundToPattern(decimal);
    decimal.digits.resize(std::max<std::size_t>(1, decimal.digits.find_last_not_of('0') + 1));

    Text out;
    if (value < 0)
        out += u'-';
    out += wide(decimal.digits.substr(0, 1));
    out += point;
    out += wide(decimal.digits.substr(1));
    out += decimal.exponent < 0 ? u"E-" : u"E+";
    const std::string exponent = std::to_string(std::abs(decimal.exponent));
    if (exponent.size() < 2)
        out += u'0';
    return out + wide(exponent);
}

std::optional<Text> resultLine(TextView result, Format format) {
    const double value = text::leadingNumber(result);
    if (!std::isfinite(value))
        return std::nullopt;
    return format == Format::Scientific ? scientificText(value) : text::numberText(value);
}

} // namespace calculator
