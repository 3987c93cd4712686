#include "coursedata/symbol_names.h"

#include "coursedata/own_symbols.h"

#include <algorithm>
#include <array>

namespace coursedata {

namespace {

constexpr std::size_t kKeyLength = 2;
constexpr std::array<std::string_view, 6> kEndings{".SVG", ".PNG", ".GIF", ".BMP", ".JPG", ".JPEG"};

std::string upperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - ('a' - 'A'));
    return upper;
}

/// Characters that every system allows in file names, the separator of the rest aside.
bool isKeyCharacter(char c) {
    return c > ' ' && c <= '~' &&
           std::string_view(".\\/:*?\"<>|").find(c) == std::string_view::npos;
}

} // namespace

std::string plainSymbolKey(std::string_view key) {
    return upperCase(key);
}

std::optional<std::string> symbolKey(std::string_view fileName) {
    const std::string name = upperCase(fileName);
    const bool isPicture = std::any_of(kEndings.begin(), kEndings.end(),
                                       [&](auto ending) { return name.ends_with(ending); });
    if (!isPicture || !std::all_of(name.begin(), name.begin() + kKeyLength, isKeyCharacter) ||
        (name[kKeyLength] != '-' && name[kKeyLength] != '.'))
        return std::nullopt;
    return name.substr(0, kKeyLength);
}

std::span<const std::string_view> ownSymbols() {
    return kOwnSymbols;
}

std::map<std::string, SymbolFile> imageListOf(std::vector<std::string> courseFiles) {
    std::sort(courseFiles.begin(), courseFiles.end());
    std::map<std::string, SymbolFile> list;
    for (std::string& name : courseFiles)
        if (auto key = symbolKey(name))
            list.try_emplace(*key, SymbolFile{std::move(name), false});
    for (const std::string_view name : ownSymbols())
        if (const auto key = symbolKey(name))
            list.try_emplace(*key, SymbolFile{std::string(name), true});
    return list;
}

} // namespace coursedata
