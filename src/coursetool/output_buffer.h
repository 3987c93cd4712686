#pragma once

#include <cstdio>
#include <string>
#include <system_error>

namespace coursetool {

/// Collects output and hands it to a stream in large pieces. What a course says reaches a terminal
/// without the control characters that could steer it, everything else byte by byte.
class OutputBuffer {
public:
    explicit OutputBuffer(std::FILE* stream);

    /// What is to be written next is appended here.
    std::string& text() { return text_; }

    /// To be called after each line; false once writing has failed.
    bool lineDone() { return text_.size() < kPiece || flush(); }

    bool flush();

    /// What went wrong first.
    std::error_code error() const { return error_; }

private:
    /// What a pipe takes at once, and little enough to stay in the processor's caches.
    static constexpr std::size_t kPiece = 64 * 1024;

    std::FILE* stream_;
    bool toTerminal_;
    std::string text_;
    std::error_code error_;
};

} // namespace coursetool
