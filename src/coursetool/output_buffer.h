#pragma once

#include <cstdio>
#include <string>

namespace coursetool {

/// Collects output and hands it to a stream in large pieces.
class OutputBuffer {
public:
    explicit OutputBuffer(std::FILE* stream) : stream_(stream) { text_.reserve(2 * kPiece); }

    /// What is to be written next is appended here.
    std::string& text() { return text_; }

    /// To be called after each line; false once writing has failed.
    bool lineDone() { return text_.size() < kPiece || flush(); }

    bool flush() {
        good_ = good_ && std::fwrite(text_.data(), 1, text_.size(), stream_) == text_.size() &&
                std::fflush(stream_) == 0;
        text_.clear();
        return good_;
    }

private:
    /// What a pipe takes at once, and little enough to stay in the processor's caches.
    static constexpr std::size_t kPiece = 64 * 1024;

    std::FILE* stream_;
    std::string text_;
    bool good_ = true;
};

} // namespace coursetool
