#pragma once

#include "calculator/expression.h"

namespace calculator {

/// A text that is rewritten at one place after the other, each near the one before: a replacement
/// costs the way from the last one and what it puts in, not what lies behind it.
class GapText {
public:
    explicit GapText(TextView text) : buffer_(text), gap_(text.size()) {}

    std::size_t size() const { return buffer_.size() - gapSize_; }
    char16_t operator[](std::size_t at) const { return buffer_[at < gap_ ? at : at + gapSize_]; }

    /// As those of Text.
    std::size_t find(char16_t c, std::size_t from) const;
    std::size_t rfind(char16_t c, std::size_t from) const;
    Text substr(std::size_t from, std::size_t count) const;

    /// Puts `by` in the place of the `count` characters from `from` on; all of them must be there,
    /// and `by` must not be a part of this text.
    void replace(std::size_t from, std::size_t count, TextView by);

    Text text() const { return substr(0, size()); }

private:
    void moveGap(std::size_t to);
    void widenGap(std::size_t least);
    TextView before() const { return TextView(buffer_).substr(0, gap_); }
    TextView behind() const { return TextView(buffer_).substr(gap_ + gapSize_); }

    Text buffer_;
    std::size_t gap_; ///< where the unused characters of the buffer begin
    std::size_t gapSize_ = 0;
};

} // namespace calculator
