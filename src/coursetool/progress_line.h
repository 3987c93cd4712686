#pragma once

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <string>

namespace coursetool {

/// A line on a terminal that tells how far long work has come, over and over in the same place; on
/// anything else, nothing. Short work does not show it, and it is gone when the work is done.
class ProgressLine {
public:
    /// Nothing is shown before `silence` is over, which is as long as nobody wonders yet.
    explicit ProgressLine(std::FILE* stream,
                          std::chrono::milliseconds silence = std::chrono::milliseconds(400));

    /// See Report::progress.
    void tell(const char* what, std::size_t done, std::size_t all);
    /// To be called before anything else is written to the terminal.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    void show(const std::string& text);

    std::FILE* stream_;
    bool onTerminal_;
    std::chrono::milliseconds between_;
    Clock::time_point next_; ///< before, nothing is shown
    std::size_t shown_ = 0;  ///< columns
};

} // namespace coursetool
