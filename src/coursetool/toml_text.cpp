#include "coursetool/toml_text.h"

namespace coursetool {

namespace {

std::string unicodeEscape(unsigned code) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string escape = "\\u0000";
    for (std::size_t i = 5; code > 0; --i, code >>= 4)
        escape[i] = kDigits[code & 0xF];
    return escape;
}

/// Control characters from U+0080 to U+009F in UTF-8.
bool isLateControl(std::string_view text) {
    return text.size() >= 2 && text[0] == '\xC2' && static_cast<unsigned char>(text[1]) < 0xA0;
}

} // namespace

std::string tomlString(std::string_view text) {
    static constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    std::string toml = "\"";
    while (!text.empty()) {
        const auto c = static_cast<unsigned char>(text.front());
        std::size_t length = 1;
        if (c == '"' || c == '\\') {
            toml += {'\\', text.front()};
        } else if (c < 0x20 || c == 0x7F) {
            toml += unicodeEscape(c);
        } else if (isLateControl(text)) {
            toml += unicodeEscape(static_cast<unsigned char>(text[1]));
            length = 2;
        } else if (text.starts_with(kByteOrderMark)) {
            toml += unicodeEscape(0xFEFF);
            length = kByteOrderMark.size();
        } else {
            toml += text.front();
        }
        text.remove_prefix(length);
    }
    return toml + '"';
}

} // namespace coursetool
