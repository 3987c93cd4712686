#include "common/french_number.h"

#include "common/words.h"
#include "text/numeric_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace common {

namespace {

constexpr char16_t kMinus = 0x2212;
constexpr char16_t kThinBlank = 0x202F;

/// No number that anyone types is longer.
constexpr std::size_t kLongestNumber = 64;

/// Four digits stand together.
constexpr std::size_t kLeastGrouped = 5;

/// A number has 309 digits before the point at most, and few after it are asked for.
using Digits = std::array<char, 400>;

std::string_view fixed(double magnitude, int decimals, Digits& buffer) {
#ifdef __cpp_lib_to_chars
    const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                          std::chars_format::fixed, decimals)
                                .ptr;
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
#else
    // In browsers: no locale gives another point there, and to_chars would bring 100 KB of tables.
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, magnitude);
    return {buffer.data(), static_cast<std::size_t>(std::max(0, length))};
#endif
}

void groupDigits(std::u16string& number) {
    const std::size_t end = std::min(number.find(u','), number.size());
    if (end < kLeastGrouped)
        return;
    for (std::size_t at = end; at > 3;)
        number.insert(at -= 3, 1, kThinBlank);
}

/// Digits with a point at most, then an exponent at most; a sign may stand before both.
bool isNumber(std::u16string_view plain) {
    const auto take = [&](std::u16string_view any) {
        const bool found = !plain.empty() && any.find(plain.front()) != any.npos;
        plain.remove_prefix(found ? 1 : 0);
        return found;
    };
    const auto digits = [&] {
        bool any = false;
        while (take(u"0123456789"))
            any = true;
        return any;
    };
    take(u"+-");
    bool any = digits();
    if (take(u"."))
        any = digits() || any;
    if (any && take(u"eE")) {
        take(u"+-");
        any = digits();
    }
    return any && plain.empty();
}

} // namespace

std::optional<double> numberFrom(std::u16string_view text) {
    if (text.size() > kLongestNumber)
        return std::nullopt;
    std::u16string plain;
    for (const char16_t character : text) {
        if (character == kMinus)
            plain += u'-';
        else if (character == u',')
            plain += u'.';
        else if (!isBlank(character))
            plain += character;
    }
    const double value = isNumber(plain) ? text::leadingNumber(plain) : NAN;
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::u16string frenchNumber(double value, int decimals) {
    if (!std::isfinite(value))
        return u"∞";
    Digits buffer;
    const std::string_view digits = fixed(std::fabs(value), decimals, buffer);
    const bool isZero = digits.find_first_of("123456789") == digits.npos;
    std::u16string number(digits.begin(), digits.end());
    std::replace(number.begin(), number.end(), u'.', u',');
    groupDigits(number);
    if (value < 0 && !isZero)
        return kMinus + number;
    return number;
}

std::u16string frenchDigits(double value, int digits) {
    if (value == 0 || !std::isfinite(value))
        return frenchNumber(value, 0);
    const int beforeComma = static_cast<int>(std::floor(std::log10(std::fabs(value)))) + 1;
    std::u16string number = frenchNumber(value, std::clamp(digits - beforeComma, 0, 6));
    if (number.find(u',') != number.npos) {
        number.erase(number.find_last_not_of(u'0') + 1);
        if (number.back() == u',')
            number.pop_back();
    }
    return number;
}

std::u16string signedNumber(double value, int decimals) {
    const std::u16string number = frenchNumber(value, decimals);
    return value > 0 ? u'+' + number : number;
}

std::u16string unitBehind(std::u16string_view unit) {
    return std::u16string(unit == u"°" ? u"" : u"\u00A0").append(unit);
}

} // namespace common
