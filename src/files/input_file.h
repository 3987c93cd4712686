#pragma once

#include "files/descriptor.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <system_error>

namespace files {

/// A regular file that is read: pipes, devices and directories, of which some would make the
/// program wait for ever, are refused as "not supported".
class InputFile {
public:
    static std::optional<InputFile> open(const std::filesystem::path& path, std::error_code& error);

    /// Bytes it had when it was opened.
    std::uint64_t size() const { return size_; }
    /// False when the file ends before, or cannot be read (then with an error).
    bool read(std::uint64_t offset, std::span<std::uint8_t> bytes, std::error_code& error) const {
        return file_.readAt(offset, bytes, error);
    }

private:
    explicit InputFile(Descriptor file) : file_(std::move(file)), size_(file_.size()) {}

    Descriptor file_;
    std::uint64_t size_;
};

} // namespace files
