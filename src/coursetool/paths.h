#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace coursetool {

/// A path as it is shown: UTF-8, "/" between its parts.
inline std::string shown(const std::filesystem::path& path) {
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

/// A path from UTF-8.
inline std::filesystem::path pathFrom(std::string_view utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

} // namespace coursetool
