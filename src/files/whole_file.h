#pragma once

#include "files/descriptor.h"
#include "files/passing_file.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace files {

/// A file that is written beside the one whose place it takes, so that whatever goes wrong leaves
/// the old one: putInPlace() gives it its name. Where a link leads to a file, that file is
/// replaced, not the link. What is no regular file, as a pipe or a device, and names of the
/// system's own ("/dev/stdout") are written directly: there is nothing to be lost.
///
/// A failure stays: once something could not be written, everything after it fails too. Dropped
/// without putInPlace(), it leaves nothing behind.
class WholeFile {
public:
    explicit WholeFile(const std::filesystem::path& target);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// Appends.
    bool write(std::span<const std::uint8_t> bytes);
    bool write(std::string_view bytes);
    /// Writes anywhere; not to be mixed with write().
    bool writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes);
    /// How sure it must be, when putInPlace() returns, that a power failure leaves the one or the
    /// other: a picture that is drawn again in no time need not wait for the disk.
    enum class Care { Quick, Lasting };
    /// Who may do what with it. What it replaces says so otherwise.
    void setPermissions(std::filesystem::perms permissions);
    /// To be called once, at the end.
    bool putInPlace(Care care = Care::Quick);

    /// What went wrong first; none as long as all went well.
    std::error_code error() const { return error_; }

private:
    void openBeside();
    const Descriptor& file() const { return beside_ ? beside_->content() : direct_; }
    bool flush();

    std::filesystem::path target_;
    std::optional<PassingFile> beside_; ///< none when the target is written directly
    Descriptor direct_;
    std::vector<std::uint8_t> waiting_; ///< to be written in one piece
    std::error_code error_;
};

} // namespace files
