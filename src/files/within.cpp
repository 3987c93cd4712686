#include "files/within.h"

#include <algorithm>
#include <system_error>

namespace files {

namespace fs = std::filesystem;

namespace {

bool startsWith(const fs::path& path, const fs::path& directory) {
    const auto [end, ignored] =
        std::mismatch(directory.begin(), directory.end(), path.begin(), path.end());
    return end == directory.end();
}

/// Without links, which are rare, asking for the real path of everything is saved.
bool leadsInto(const fs::path& path, const fs::path& directory) {
    if (isFreeOfLinks(path, directory))
        return true;
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    const fs::path realDirectory = error ? fs::path() : fs::canonical(directory, error);
    return !error && startsWith(real, realDirectory);
}

} // namespace

bool isFileWithin(const fs::path& file, const fs::path& directory) {
    std::error_code error;
    return fs::is_regular_file(file, error) && leadsInto(file, directory);
}

bool isDirectoryWithin(const fs::path& folder, const fs::path& directory) {
    std::error_code error;
    return fs::is_directory(folder, error) && leadsInto(folder, directory);
}

bool isFreeOfLinks(const fs::path& path, const fs::path& directory) {
    auto [part, rest] = std::mismatch(path.begin(), path.end(), directory.begin(), directory.end());
    // A separator at the directory's end counts as an empty name.
    if (rest != directory.end() && !(rest->empty() && std::next(rest) == directory.end()))
        return false;
    fs::path at = directory;
    for (; part != path.end(); ++part) {
        std::error_code error;
        at /= *part;
        if (*part == ".." || fs::is_symlink(fs::symlink_status(at, error)))
            return false;
    }
    return true;
}

} // namespace files
