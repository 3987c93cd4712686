#pragma once

#include <filesystem>
#include <system_error>

namespace files {

/// Copies a regular file with its permissions; whatever goes wrong, what stood at `to` stays.
std::error_code copyFile(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace files
