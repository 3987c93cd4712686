#include "coursetool/json_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace coursetool {

namespace {

bool needsEscape(unsigned char c) {
    return c < 0x20 || c == '"' || c == '\\';
}

/// Whether one of the eight bytes needs an escape. A sum of high bits per byte: exact for bytes
/// below 0x80, and those above never count.
bool anyNeedsEscape(std::uint64_t bytes) {
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHigh = 0x8080808080808080;
    const auto hasZero = [](std::uint64_t x) { return (x - kOnes) & ~x; };
    const std::uint64_t control = (bytes - kOnes * 0x20) & ~bytes;
    return ((control | hasZero(bytes ^ (kOnes * '"')) | hasZero(bytes ^ (kOnes * '\\'))) & kHigh) !=
           0;
}

/// Length of the start of `text` that stands in JSON as it is.
std::size_t plainLength(std::string_view text) {
    std::size_t i = 0;
    for (std::uint64_t bytes; i + sizeof bytes <= text.size(); i += sizeof bytes) {
        std::memcpy(&bytes, text.data() + i, sizeof bytes);
        if (anyNeedsEscape(bytes))
            break;
    }
    while (i < text.size() && !needsEscape(static_cast<unsigned char>(text[i])))
        ++i;
    return i;
}

void appendEscape(unsigned char c, std::string& out) {
    static constexpr char kDigits[] = "0123456789abcdef";
    switch (c) {
    case '\n':
        out += "\\n";
        break;
    case '\r':
        out += "\\r";
        break;
    case '\t':
        out += "\\t";
        break;
    case '"':
    case '\\':
        out += {'\\', static_cast<char>(c)};
        break;
    default:
        out += "\\u00";
        out += {kDigits[c >> 4], kDigits[c & 0xF]};
    }
}

template <class Number>
void appendShortest(Number number, std::string& out) {
    if (!std::isfinite(number)) {
        out += std::isnan(number) ? "\"NaN\"" : number > 0 ? "\"Infinity\"" : "\"-Infinity\"";
        return;
    }
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, end);
}

} // namespace

void appendJsonString(std::string_view utf8, std::string& out) {
    out += '"';
    while (!utf8.empty()) {
        const std::size_t plain = plainLength(utf8);
        out.append(utf8.data(), plain);
        utf8.remove_prefix(plain);
        if (utf8.empty())
            break;
        appendEscape(static_cast<unsigned char>(utf8.front()), out);
        utf8.remove_prefix(1);
    }
    out += '"';
}

void appendJsonNumber(double number, std::string& out) {
    appendShortest(number, out);
}

void appendJsonNumber(float number, std::string& out) {
    appendShortest(number, out);
}

} // namespace coursetool
