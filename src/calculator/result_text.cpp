#include "calculator/result_text.h"

#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace calculator {

namespace {

/// Digits of the pattern, the one before the point included.
constexpr std::size_t kPatternDigits = 8;

struct Decimal {
    std::string digits; ///< the first stands before the point
    int exponent = 0;
};

Decimal decimalOf(double magnitude) {
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, text::kSignificantDigits - 1)
                         .ptr;
    const std::string written(buffer.data(), end);
    Decimal decimal;
    decimal.digits = written.front();
    decimal.digits.append(written, 2, text::kSignificantDigits - 1);
    decimal.exponent = std::stoi(written.substr(written.find('e') + 1));
    return decimal;
}

/// To the digits of the pattern, halves upwards; 9.99999995 becomes 1 and the next exponent.
void roundToPattern(Decimal& decimal) {
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

TextView message(ErrorCode error) {
    switch (error) {
    case ErrorCode::None:
        break;
    case ErrorCode::Impossible:
        return u"Calcul impossible";
    case ErrorCode::Parentheses:
        return u"Erreur saisie: revoir les parenthèses";
    case ErrorCode::Operators:
        return u"Erreur saisie: incompréhension sur opérateurs: ^ * / + -";
    }
    return {};
}

} // namespace calculator
