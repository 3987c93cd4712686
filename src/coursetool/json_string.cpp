#include "coursetool/json_string.h"

#include "coursetool/plain_run.h"
#include "text/utf8.h"

#include <utility>

namespace coursetool {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
/// Texts go through a buffer on the stack in stretches of so many units or bytes.
constexpr std::size_t kStretch = 2048;
/// Room for a stretch, and for a replacement that the unit before it left to be written.
constexpr std::size_t kBuffer = (kStretch + 1) * kLongest + kOverrun;

bool isHigh(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLow(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Bytes of UTF-8 with their escapes.
char* putStretch(std::string_view utf8, char* to) {
    while (true) {
        const std::size_t plain = copyPlain(utf8, to);
        to += plain;
        utf8.remove_prefix(plain);
        if (utf8.empty())
            return to;
        to = putLatin(static_cast<unsigned char>(utf8.front()), to);
        utf8.remove_prefix(1);
    }
}

void appendEscaped(std::string_view utf8, std::string& out) {
    char buffer[kBuffer];
    while (!utf8.empty()) {
        const std::string_view stretch = utf8.substr(0, kStretch);
        out.append(buffer, putStretch(stretch, buffer));
        utf8.remove_prefix(stretch.size());
    }
}

} // namespace

void appendJsonString(std::string_view utf8, std::string& out) {
    out += '"';
    appendEscaped(utf8, out);
    out += '"';
}

void JsonString::unit(char16_t unit) {
    char buffer[2 * kLongest + kOverrun];
    out_.append(buffer, put(unit, buffer));
}

void JsonString::ascii(const std::uint8_t* bytes, std::size_t count) {
    if (count == 0)
        return;
    endPair();
    appendEscaped({reinterpret_cast<const char*>(bytes), count}, out_);
}

void JsonString::wide(jet::Bytes units) {
    char buffer[kBuffer];
    while (units.size() >= 2) {
        const jet::Bytes stretch = units.first(2 * kStretch);
        out_.append(buffer, putStretch(stretch, buffer));
        units = units.from(stretch.size());
    }
}

void JsonString::close() {
    endPair();
    out_ += '"';
}

/// No more halves of a pair come.
void JsonString::endPair() {
    if (std::exchange(high_, u'\0') == 0)
        return;
    char buffer[kLongest];
    out_.append(buffer, text::encodeUtf8(kReplacement, buffer));
}

char* JsonString::put(char16_t unit, char* to) {
    if (high_ != 0) {
        const char16_t high = std::exchange(high_, u'\0');
        if (isLow(unit))
            return text::encodeUtf8(0x10000u + ((high - 0xD800u) << 10) + (unit - 0xDC00u), to);
        to = text::encodeUtf8(kReplacement, to);
    }
    if (unit < kWrittenLatin.size())
        return putLatin(static_cast<unsigned char>(unit), to);
    if (isHigh(unit)) {
        high_ = unit;
        return to;
    }
    return text::encodeUtf8(isLow(unit) ? kReplacement : char32_t{unit}, to);
}

/// Gives the end of what it wrote; a byte left over is dropped.
char* JsonString::putStretch(jet::Bytes units, char* to) {
    while (units.size() >= 2) {
        if (high_ == 0)
            units = units.from(2 * putLatinRun(units, to)); // leaves some at the end
        do {
            to = put(units.u16(0), to);
            units = units.from(2);
        } while (units.size() >= 2 && (high_ != 0 || units.u16(0) >= kWrittenLatin.size()));
    }
    return to;
}

} // namespace coursetool
