#pragma once

#include "files/whole_file.h"
#include "jet/bytes.h"
#include "jet/result.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

namespace jet {

/// The file that is being written, next to the one it will replace. Pages may be written in any
/// order. A failure stays: once something could not be written, everything after it fails too.
class OutputFile {
public:
    static Result<std::unique_ptr<OutputFile>> create(const std::filesystem::path& target);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// The number of a page nobody else has.
    std::uint32_t allocate() { return pageCount_++; }
    std::uint32_t pageCount() const { return pageCount_; }
    /// `page` is one whole page.
    void write(std::uint32_t number, Bytes page);
    /// What went wrong so far, that the file outgrew the format, or that it is closed already.
    Result<void> state() const;
    /// Closes the file and gives it the target's name.
    Result<void> putInPlace();

private:
    explicit OutputFile(const std::filesystem::path& target) : target_(target), file_(target) {}
    bool writeWaiting();

    std::filesystem::path target_;
    files::WholeFile file_;
    std::uint32_t pageCount_ = 0;
    /// Pages that follow each other, to be written in one piece.
    std::vector<std::uint8_t> waiting_;
    std::uint64_t waitingAt_ = 0;
    bool closed_ = false;
};

} // namespace jet
