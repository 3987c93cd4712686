#pragma once

#include "files/directory_lock.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace files {

/// A folder of the system's for what passes, which goes with its owner. What is left of a program
/// that was killed goes when the next one makes such a folder.
class PassingFolder {
public:
    /// Without a path, and an error, when there can be none.
    explicit PassingFolder(std::error_code& error);
    ~PassingFolder();
    PassingFolder(const PassingFolder&) = delete;
    PassingFolder& operator=(const PassingFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
    std::optional<DirectoryLock> lock_;
};

} // namespace files
