#pragma once

#include <filesystem>

namespace files {

// A course is whatever somebody put together; its links could lead to anything that the person may
// read. So what it names is read only when it stands in its own directory in the end.

/// Whether `file` is a regular file and, followed to its end, lies in `directory`.
bool isFileWithin(const std::filesystem::path& file, const std::filesystem::path& directory);

/// The same for a directory.
bool isDirectoryWithin(const std::filesystem::path& folder, const std::filesystem::path& directory);

/// Whether writing to `path` stays in `directory`: neither it nor a directory on the way from there
/// is a link. What does not exist yet is none.
bool isFreeOfLinks(const std::filesystem::path& path, const std::filesystem::path& directory);

} // namespace files
