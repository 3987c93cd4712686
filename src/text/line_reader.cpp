#include "text/line_reader.h"

namespace text {

Line readLine(std::streambuf& in, std::string& line) {
    constexpr int kEnd = std::char_traits<char>::eof();
    line.clear();
    int c = in.sbumpc();
    if (c == kEnd)
        return Line::None;
    bool tooLong = false;
    for (; c != kEnd && c != '\n'; c = in.sbumpc()) {
        if (line.size() < kLongestLine)
            line += static_cast<char>(c);
        else
            tooLong = true;
    }
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return tooLong ? Line::TooLong : Line::Whole;
}

Line readQuestion(std::streambuf& in, std::ostream& answers, std::string& line) {
    if (in.in_avail() <= 0)
        answers.flush();
    return readLine(in, line);
}

} // namespace text
