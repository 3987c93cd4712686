#pragma once

#include "jet/byte_sink.h"
#include "jet/bytes.h"
#include "jet/result.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace jet {

/// The pages of the database that is being written, in any order. A failure stays: once something
/// could not be written, everything after it fails too.
class OutputFile {
public:
    explicit OutputFile(std::unique_ptr<ByteSink> sink) : sink_(std::move(sink)) {}
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// The number of a page nobody else has.
    std::uint32_t allocate() { return pageCount_++; }
    std::uint32_t pageCount() const { return pageCount_; }
    /// `page` is one whole page.
    void write(std::uint32_t number, Bytes page);
    /// What went wrong so far, that the file outgrew the format, or that it is closed already.
    Result<void> state() const;
    /// Writes what is left and closes the database.
    Result<void> putInPlace();

private:
    void writeWaiting();

    std::unique_ptr<ByteSink> sink_;
    std::uint32_t pageCount_ = 0;
    /// Pages that follow each other, to be written in one piece.
    std::vector<std::uint8_t> waiting_;
    std::uint64_t waitingAt_ = 0;
    bool closed_ = false;
};

} // namespace jet
