#pragma once

#include "calculator/expression.h"
#include "calculator/result_text.h"

#include <QString>

#include <iosfwd>

namespace calculator {

/// What the course tool's subcommand is asked for.
struct CalcOptions {
    QString expression; ///< not looked at with `batch`
    AngleMode angles = AngleMode::Degrees;
    Format format = Format::Standard;
    bool batch = false; ///< one expression a line of the input, one line of output each
    bool trace = false; ///< every step and the text it leaves, before the result; not with `batch`
};

/// Exit status of a call that cannot be carried out; 0 to 3 are those of ErrorCode.
inline constexpr int kWrongCall = 64;

/// Evaluates and writes the result line, leading space included, to `out`, or the message to `err`;
/// gives the exit status. A result beyond a double's range is error 1. All text is UTF-8.
///
/// With `batch` each line of `in` gives one line of `out`, the error code, a tab, and the result
/// line or the message; the status is 0.
int runCalc(const CalcOptions& options, std::istream& in, std::ostream& out, std::ostream& err);

} // namespace calculator
