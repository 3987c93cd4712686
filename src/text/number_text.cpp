#include "text/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <system_error>

namespace text {

namespace {

/// Places that plain form has at most on each side of the point.
constexpr int kPlainPlaces = 15;

/// Smallest power of ten written in plain form.
constexpr int kSmallestPlainExponent = -6;

/// Whole numbers below this have at most 15 digits.
constexpr double kWholeLimit = 1e15;

/// d1.d2d3... times ten to the exponent, without trailing zeros among the digits.
struct Decimal {
    std::array<char, kSignificantDigits> digits;
    int count;
    int exponent;
};

/// Writes "d.dddddddddddddde+xx" and gives its end.
const char* writeScientific(double magnitude, std::array<char, 32>& buffer) {
#ifdef __cpp_lib_to_chars
    return std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                         std::chars_format::scientific, kSignificantDigits - 1)
        .ptr;
#else
    // In browsers: no locale gives another point there, and to_chars would bring 100 KB of tables.
    return buffer.data() +
           std::snprintf(buffer.data(), buffer.size(), "%.*e", kSignificantDigits - 1, magnitude);
#endif
}

Decimal rounded(double magnitude) {
    std::array<char, 32> buffer;
    const char* const end = writeScientific(magnitude, buffer);
    // The point and the letter stand at fixed places.
    Decimal decimal{};
    decimal.digits[0] = buffer[0];
    for (std::size_t i = 1; i < kSignificantDigits; ++i)
        decimal.digits[i] = buffer[i + 1];
    decimal.count = kSignificantDigits;
    while (decimal.count > 1 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0')
        --decimal.count;
    const char* const sign = buffer.data() + kSignificantDigits + 2;
    std::from_chars(sign + 1, end, decimal.exponent);
    if (*sign == '-')
        decimal.exponent = -decimal.exponent;
    return decimal;
}

void append(std::u16string& out, std::string_view ascii) {
    out.append(ascii.begin(), ascii.end());
}

void appendPlain(std::u16string& out, const Decimal& decimal) {
    const std::string_view digits(decimal.digits.data(), static_cast<std::size_t>(decimal.count));
    if (decimal.exponent < 0) {
        out += u'.';
        out.append(static_cast<std::size_t>(-decimal.exponent - 1), u'0');
        append(out, digits);
        return;
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent + 1);
    append(out, digits.substr(0, whole));
    if (digits.size() < whole) {
        out.append(whole - digits.size(), u'0');
    } else if (digits.size() > whole) {
        out += u'.';
        append(out, digits.substr(whole));
    }
}

void appendExponential(std::u16string& out, const Decimal& decimal) {
    const std::string_view digits(decimal.digits.data(), static_cast<std::size_t>(decimal.count));
    append(out, digits.substr(0, 1));
    if (digits.size() > 1) {
        out += u'.';
        append(out, digits.substr(1));
    }
    out += u'E';
    out += decimal.exponent < 0 ? u'-' : u'+';
    const int exponent = std::abs(decimal.exponent);
    if (exponent < 10)
        out += u'0';
    append(out, std::to_string(exponent));
}

bool isPlain(const Decimal& decimal) {
    const int decimals = decimal.count - 1 - decimal.exponent;
    return decimal.exponent < kPlainPlaces && decimal.exponent >= kSmallestPlainExponent &&
           decimals <= kPlainPlaces;
}

void appendWhole(std::u16string& out, double magnitude) {
    std::array<char, 20> buffer;
    const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                          static_cast<std::int64_t>(magnitude))
                                .ptr;
    append(out, {buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}

void appendMagnitude(std::u16string& out, double magnitude) {
    if (magnitude < kWholeLimit && magnitude == std::trunc(magnitude)) {
        appendWhole(out, magnitude); // what the general way gives, many times faster
        return;
    }
    const Decimal decimal = rounded(magnitude);
    isPlain(decimal) ? appendPlain(out, decimal) : appendExponential(out, decimal);
}

} // namespace

std::u16string numberText(double value) {
    std::u16string out(1, value < 0 ? u'-' : u' ');
    appendMagnitude(out, std::abs(value));
    return out;
}

std::u16string trimmedNumberText(double value) {
    std::u16string out;
    if (value < 0)
        out += u'-';
    appendMagnitude(out, std::abs(value));
    return out;
}

} // namespace text
