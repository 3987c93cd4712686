#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace app {

/// The number that the text consists of; nothing for any other text.
inline std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    if (error != std::errc() || end != last)
        return std::nullopt;
    return number;
}

} // namespace app
