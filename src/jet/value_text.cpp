#include "jet/value_text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace jet {

namespace {

constexpr std::size_t kCurrencyScale = 4;

/// Digits of a whole number with the point `scale` digits from the right.
std::string withPoint(std::string digits, std::size_t scale, bool negative) {
    if (digits.size() <= scale)
        digits = std::string(scale + 1 - digits.size(), '0') + digits;
    std::string text(negative ? "-" : "");
    text.append(digits, 0, digits.size() - scale);
    if (scale > 0) {
        text += '.';
        text.append(digits, digits.size() - scale);
    }
    return text;
}

/// Divides the number by ten in place and gives the remainder.
unsigned divideByTen(std::array<std::uint32_t, 4>& words) {
    std::uint64_t remainder = 0;
    for (std::uint32_t& word : words) {
        const std::uint64_t part = remainder << 32 | word;
        word = static_cast<std::uint32_t>(part / 10);
        remainder = part % 10;
    }
    return static_cast<unsigned>(remainder);
}

} // namespace

std::string toText(Currency value) {
    const bool negative = value.tenThousandths < 0;
    const auto bits = static_cast<std::uint64_t>(value.tenThousandths);
    return withPoint(std::to_string(negative ? 0 - bits : bits), kCurrencyScale, negative);
}

std::string toText(const Decimal& value) {
    std::array<std::uint32_t, 4> rest = value.magnitude;
    std::string digits;
    do {
        digits += static_cast<char>('0' + divideByTen(rest));
    } while (rest != std::array<std::uint32_t, 4>{});
    std::reverse(digits.begin(), digits.end());
    return withPoint(digits, value.scale, value.negative && digits != "0");
}

std::string toText(const Guid& value) {
    // The first three groups are numbers stored lowest byte first.
    constexpr std::array<std::size_t, 16> kOrder{3, 2, 1,  0,  5,  4,  7,  6,
                                                 8, 9, 10, 11, 12, 13, 14, 15};
    std::string text = "{";
    for (std::size_t i = 0; i < kOrder.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            text += '-';
        constexpr char kDigits[] = "0123456789ABCDEF";
        text += kDigits[value.bytes[kOrder[i]] >> 4];
        text += kDigits[value.bytes[kOrder[i]] & 15];
    }
    return text + '}';
}

std::string toHex(const Binary& value) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * value.size());
    for (const std::uint8_t byte : value) {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 15];
    }
    return text;
}

std::optional<std::string> toText(DateTime value) {
    constexpr double kFirst = -657434, kEnd = 2958466; // 0100-01-01, 10000-01-01
    double day = std::trunc(value.days);
    if (!(day >= kFirst && day < kEnd)) // written so that a NaN is none
        return std::nullopt;
    constexpr long kSecondsOfDay = 86400;
    auto second = std::lround(std::abs(value.days - day) * kSecondsOfDay);
    if (second == kSecondsOfDay) {
        second = 0;
        day += 1;
    }
    if (day >= kEnd)
        return std::nullopt;
    using namespace std::chrono;
    const year_month_day date(sys_days(year(1899) / December / 30) + days(static_cast<int>(day)));
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02ld:%02ld:%02ld",
                  static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), second / 3600, second / 60 % 60, second % 60);
    return text.data();
}

} // namespace jet
