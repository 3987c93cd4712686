#pragma once

#include "jet/bytes.h"
#include "jet/result.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>

namespace jet {

/// The file that is being written, next to the one it will replace. Pages may be written in any
/// order. A failure stays: once something could not be written, everything after it fails too.
class OutputFile {
public:
    static Result<std::unique_ptr<OutputFile>> create(const std::filesystem::path& target);
    ~OutputFile(); ///< removes what was not put in place
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
    OutputFile(std::filesystem::path target, std::filesystem::path temporary);
    Failure failure(const char* what) const;

    std::filesystem::path target_;
    std::filesystem::path temporary_;
    std::ofstream file_;
    std::uint32_t pageCount_ = 0;
    std::uint32_t nextInOrder_ = 0; ///< page the file would write without moving
    bool failed_ = false;
    bool closed_ = false;
};

} // namespace jet
