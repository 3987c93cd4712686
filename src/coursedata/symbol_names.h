#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace coursedata {

// The image list: small pictures that pages name by keys of two characters. Our own come with the
// program; a course adds to them, or takes their places, with files in the folder `symbols` of its
// installation directory. Without Qt, so that the course tool lists them without waiting for it.

inline constexpr char kSymbolFolder[] = "symbols";

/// The key that a file's name begins with, its letters in upper case: "LK" for "lk-lien.svg" and
/// "LK.png". Nothing for other names. Letter case of keys does not count, since that of file names
/// does not.
std::optional<std::string> symbolKey(std::string_view fileName);

/// A key in the form in which the image list has it.
std::string plainSymbolKey(std::string_view key);

/// File names of the symbols that come with the program.
std::span<const std::string_view> ownSymbols();

struct SymbolFile {
    std::string name;
    bool isOwn;
};

/// The symbol of each key, given the names of the files in the course's folder. Of several of the
/// course's for one key the first counts, in code point order.
std::map<std::string, SymbolFile> imageListOf(std::vector<std::string> courseFiles);

} // namespace coursedata
