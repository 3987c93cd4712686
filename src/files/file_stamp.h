#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace files {

/// What tells, without reading it, whether a file is the one that it was.
struct FileStamp {
    std::uint64_t device = 0; ///< with `number` which file it is; 0 where systems do not say
    std::uint64_t number = 0;
    std::uint64_t size = 0;   ///< in bytes
    std::int64_t written = 0; ///< when its content was, in nanoseconds since some time
    std::int64_t changed = 0; ///< when anything about it was; nobody can set this one back
    bool operator==(const FileStamp&) const = default;
};

/// Of the file that links lead to; nothing when there is none.
std::optional<FileStamp> stampOf(const std::filesystem::path& file);

/// Whether a file with this stamp now would have another one, were it written once more. Times of
/// files go in steps: of what was written a moment ago, the stamp alone tells nothing.
bool isSettled(const FileStamp& stamp);

} // namespace files
