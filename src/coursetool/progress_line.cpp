#include "coursetool/progress_line.h"

#include "coursetool/terminal.h"

namespace coursetool {

// Between two lines, time enough to read numbers.
ProgressLine::ProgressLine(std::FILE* stream, std::chrono::milliseconds silence)
    : stream_(stream), onTerminal_(isTerminal(stream)), between_(silence / 4),
      next_(Clock::now() + silence) {}

void ProgressLine::tell(const char* what, std::size_t done, std::size_t all) {
    if (!onTerminal_)
        return;
    if (done >= all)
        return clear();
    const Clock::time_point now = Clock::now();
    if (now < next_)
        return;
    next_ = now + between_;
    show(std::string(what) + " : " + std::to_string(done) + " sur " + std::to_string(all));
}

void ProgressLine::clear() {
    if (shown_ > 0)
        show({});
}

/// Blanks rather than a sequence that clears the line: every terminal knows them.
void ProgressLine::show(const std::string& text) {
    const std::size_t rest = shown_ > text.size() ? shown_ - text.size() : 0;
    const std::string line = '\r' + text + std::string(rest, ' ') + (text.empty() ? "\r" : "");
    std::fwrite(line.data(), 1, line.size(), stream_);
    std::fflush(stream_);
    shown_ = text.size();
}

} // namespace coursetool
