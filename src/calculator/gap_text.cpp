#include "calculator/gap_text.h"

#include <algorithm>

namespace calculator {

std::size_t GapText::find(char16_t c, std::size_t from) const {
    if (from < gap_)
        if (const std::size_t at = before().find(c, from); at != Text::npos)
            return at;
    const std::size_t at = behind().find(c, from < gap_ ? 0 : from - gap_);
    return at == Text::npos ? at : at + gap_;
}

std::size_t GapText::rfind(char16_t c, std::size_t from) const {
    if (from >= gap_)
        if (const std::size_t at = behind().rfind(c, from - gap_); at != Text::npos)
            return at + gap_;
    return before().rfind(c, from);
}

Text GapText::substr(std::size_t from, std::size_t count) const {
    Text out;
    out.reserve(count);
    if (from < gap_)
        out.append(before().substr(from, count));
    const std::size_t behindFrom = from < gap_ ? 0 : from - gap_;
    return out.append(behind().substr(behindFrom, count - out.size()));
}

void GapText::replace(std::size_t from, std::size_t count, TextView by) {
    moveGap(from);
    gapSize_ += count;
    if (gapSize_ < by.size())
        widenGap(by.size());
    std::ranges::copy(by, buffer_.begin() + static_cast<std::ptrdiff_t>(gap_));
    gap_ += by.size();
    gapSize_ -= by.size();
}

void GapText::moveGap(std::size_t to) {
    const auto at = [this](std::size_t position) {
        return buffer_.begin() + static_cast<std::ptrdiff_t>(position);
    };
    if (to < gap_)
        std::copy_backward(at(to), at(gap_), at(gap_ + gapSize_));
    else
        std::copy(at(gap_ + gapSize_), at(to + gapSize_), at(gap_));
    gap_ = to;
}

/// By a part of the text each time, so that many replacements rarely widen it.
void GapText::widenGap(std::size_t least) {
    const std::size_t more = least + buffer_.size() / 2;
    buffer_.insert(gap_, more, u'\0');
    gapSize_ += more;
}

} // namespace calculator
