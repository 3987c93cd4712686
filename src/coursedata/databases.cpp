#include "coursedata/databases.h"

#include "files/within.h"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace coursedata {

namespace fs = std::filesystem;

namespace {

char8_t small(char8_t c) {
    return c >= u8'A' && c <= u8'Z' ? static_cast<char8_t>(c + (u8'a' - u8'A')) : c;
}

bool sameInAnyCase(std::u8string_view a, std::u8string_view b) {
    return std::ranges::equal(a, b, {}, small, small);
}

} // namespace

std::optional<fs::path> findDatabase(const fs::path& directory, const char* name) {
    if (directory.empty())
        return std::nullopt;
    // The exact name saves listing the directory, which takes long where it is large.
    if (const fs::path exact = directory / name; files::isFileWithin(exact, directory))
        return exact;
    const std::u8string wanted = fs::path(name).u8string();
    std::optional<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator it(directory, error), end; !error && it != end;
         it.increment(error)) {
        const fs::path& path = it->path();
        if (sameInAnyCase(path.filename().u8string(), wanted) &&
            files::isFileWithin(path, directory) && (!found || path < *found))
            found = path;
    }
    return found;
}

} // namespace coursedata
