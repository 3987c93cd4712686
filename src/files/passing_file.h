#pragma once

#include "files/descriptor.h"

#include <filesystem>
#include <system_error>

namespace files {

/// A new file of a passing name, ".partiel-0" and so on, that is to get another one or to go. As
/// long as its program lives it is locked; who makes the next one in the same directory takes away
/// what killed programs have left there, where the file system knows locks.
class PassingFile {
public:
    PassingFile() = default;
    /// Without a file, and an error, when none can be made there.
    PassingFile(const std::filesystem::path& directory, std::error_code& error);
    /// Takes it away, unless it has another name.
    ~PassingFile();
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;

    const Descriptor& content() const { return content_; }
    const std::filesystem::path& path() const { return path_; }

    /// Closes it and puts it in the place of `target`. False when what was written last is lost, or
    /// it stands nowhere: then the target is as it was.
    bool becomes(const std::filesystem::path& target, std::error_code& error);

private:
    bool make(const std::filesystem::path& path, std::error_code& error);

    std::filesystem::path path_; ///< empty without a file
    Descriptor content_;
    Descriptor lock_; ///< outlives the content, as long as the name passes
};

} // namespace files
