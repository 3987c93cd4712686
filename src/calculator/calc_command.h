#pragma once

#include "calculator/expression.h"
#include "calculator/result_text.h"

#include <iosfwd>
#include <string>

namespace calculator {

/// What the course tool's subcommand is asked for. All text is UTF-8.
struct CalcOptions {
    std::string expression; ///< not looked at with `batch`
    AngleMode angles = AngleMode::Degrees;
    Format format = Format::Standard;
    bool batch = false; ///< one expression a line of the input, one line of output each
    bool trace = false; ///< every step and the text it leaves, before the result; not with `batch`
};

/// Exit status of a call that makes no sense; 0 to 3 are those of ErrorCode.
inline constexpr int kWrongCall = 64;

/// Evaluates and writes the result line, leading space included, to `out`, or the message to `err`;
/// gives the exit status. A result beyond a double's range is error 1.
///
/// With `batch` each line of `in` gives one line of `out`, the error code, a tab, and the result
/// line or the message; the status is 0. Answers are flushed before more input is waited for, so
/// that another program can ask and read in turn.
int runCalc(const CalcOptions& options, std::istream& in, std::ostream& out, std::ostream& err);

} // namespace calculator
