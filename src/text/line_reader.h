#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>

namespace text {

/// Longest line, in bytes, that readLine() keeps: far beyond what anybody types, and little enough
/// to hold in memory whatever the input is.
inline constexpr std::size_t kLongestLine = 1 << 20;

enum class Line {
    None, ///< the input has ended
    Whole,
    TooLong, ///< only the start was kept; the rest of the line is read all the same
};

/// Reads a line without its end (LF or CR LF); the last one need not have an end.
Line readLine(std::streambuf& in, std::string& line);

/// The next question of a dialogue: whoever waits for an answer before writing it gets the answers
/// so far from `answers` first.
Line readQuestion(std::streambuf& in, std::ostream& answers, std::string& line);

} // namespace text
