#include "calculator/calc_command.h"

#include "calculator/evaluator.h"
#include "jet/unicode.h"

#include <istream>
#include <ostream>

namespace calculator {

namespace {

/// Longest line, in bytes, that a batch takes up: far beyond what the counters can count, and
/// little enough to hold in memory whatever the input is.
constexpr std::size_t kLongestLine = 1 << 20;

struct Answer {
    ErrorCode error;
    std::string line; ///< result line or message
};

Answer failure(ErrorCode error) {
    return {error, jet::toUtf8(message(error))};
}

Answer answerTo(const std::string& expression, const CalcOptions& options, Hooks hooks = {}) {
    const Evaluation found =
        Evaluator(std::move(hooks)).evaluer(jet::toUtf16(expression), options.angles);
    if (found.error != ErrorCode::None)
        return failure(found.error);
    if (const auto line = resultLine(found.text, options.format))
        return {ErrorCode::None, jet::toUtf8(*line)};
    return {ErrorCode::Impossible, jet::toUtf8(kOverflowMessage)};
}

enum class Line { None, Whole, TooLong };

/// Reads a line without its end (LF or CR LF); of one that is too long only the start is kept.
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

void runBatch(const CalcOptions& options, std::streambuf& in, std::ostream& out) {
    std::string line;
    while (out) {
        if (in.in_avail() <= 0)
            out.flush();
        const Line read = readLine(in, line);
        if (read == Line::None)
            return;
        const Answer answer =
            read == Line::TooLong ? failure(ErrorCode::Impossible) : answerTo(line, options);
        out << static_cast<int>(answer.error) << '\t' << answer.line << '\n';
    }
}

} // namespace

int runCalc(const CalcOptions& options, std::istream& in, std::ostream& out, std::ostream& err) {
    if (options.batch) {
        runBatch(options, *in.rdbuf(), out);
        return 0;
    }
    Hooks hooks;
    if (options.trace)
        hooks.trace = [&out](const char* step, TextView text) {
            out << step << '\t' << jet::toUtf8(text) << '\n';
        };
    const Answer answer = answerTo(options.expression, options, std::move(hooks));
    (answer.error == ErrorCode::None ? out : err) << answer.line << '\n';
    return static_cast<int>(answer.error);
}

} // namespace calculator
