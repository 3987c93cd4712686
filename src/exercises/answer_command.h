#pragma once

#include <iosfwd>
#include <string>

namespace exercises {

/// What the course tool's subcommand is asked for. Texts are UTF-8.
struct AnswerOptions {
    std::string solution; ///< not looked at with `batch`
    std::string text;     ///< not looked at with `batch`
    bool batch = false;   ///< one solution, a tab and one typed text a line of the input
};

/// Writes "juste" or "faux" to `out` for a typed answer; the exit status is 0 or 1.
///
/// With `batch` each line of `in` gives one line of `out`. A line without a tab or beyond
/// text::kLongestLine bytes is named on `err` and counts as "faux"; the status is then 1, otherwise
/// 0. The solution ends at the first tab.
int runAnswer(const AnswerOptions& options, std::istream& in, std::ostream& out, std::ostream& err);

} // namespace exercises
