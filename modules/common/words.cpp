#include "common/words.h"

#include <algorithm>

namespace common {

bool isBlank(char16_t c) {
    return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F ||
           c == 0x205F || c == 0x3000;
}

std::u16string_view trimmed(std::u16string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::vector<std::u16string_view> splitAtBlanks(std::u16string_view text) {
    std::vector<std::u16string_view> parts;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const auto end = std::find_if(text.begin(), text.end(), isBlank) - text.begin();
        parts.push_back(text.substr(0, static_cast<std::size_t>(end)));
        text.remove_prefix(static_cast<std::size_t>(end));
    }
    return parts;
}

std::u16string filled(std::u16string_view pattern,
                      std::initializer_list<std::u16string_view> arguments) {
    std::u16string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const std::size_t which = pattern[at] == u'%' && at + 1 < pattern.size()
                                      ? static_cast<std::size_t>(pattern[at + 1] - u'1')
                                      : arguments.size();
        if (which < arguments.size()) {
            text += arguments.begin()[which];
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

std::u16string joined(const std::vector<std::u16string>& parts, std::u16string_view between) {
    std::u16string text;
    for (std::size_t i = 0; i < parts.size(); ++i)
        text.append(i > 0 ? between : u"").append(parts[i]);
    return text;
}

std::u16string decimal(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

} // namespace common
