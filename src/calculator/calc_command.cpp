#include "calculator/calc_command.h"

#include "calculator/evaluator.h"

#include <istream>
#include <ostream>

namespace calculator {

namespace {

/// Longest line, in bytes, that a batch takes up: far beyond what the counters can count, and
/// little enough to hold in memory whatever the input is.
constexpr std::size_t kLongestLine = 1 << 20;

struct Answer {
    ErrorCode error;
    Text line; ///< result line or message
};

Answer answerTo(const Text& expression, const CalcOptions& options, Hooks hooks = {}) {
    const Evaluation found = Evaluator(std::move(hooks)).evaluer(expression, options.angles);
    if (found.error != ErrorCode::None)
        return {found.error, Text(message(found.error))};
    if (const auto line = resultLine(found.text, options.format))
        return {ErrorCode::None, *line};
    return {ErrorCode::Impossible, Text(kOverflowMessage)};
}

std::string utf8(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())).toStdString();
}

enum class Line { None, Whole, TooLong };

/// Reads a line without its end (LF or CR LF); of one that is too long only the start is kept.
Line readLine(std::istream& in, std::string& line) {
    line.clear();
    bool any = false;
    bool tooLong = false;
    for (char c = 0; in.get(c);) {
        any = true;
        if (c == '\n')
            break;
        if (line.size() < kLongestLine)
            line += c;
        else
            tooLong = true;
    }
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return !any ? Line::None : tooLong ? Line::TooLong : Line::Whole;
}

void runBatch(const CalcOptions& options, std::istream& in, std::ostream& out) {
    std::string line;
    for (Line read = readLine(in, line); read != Line::None; read = readLine(in, line)) {
        const Answer answer =
            read == Line::TooLong
                ? Answer{ErrorCode::Impossible, Text(message(ErrorCode::Impossible))}
                : answerTo(QString::fromStdString(line).toStdU16String(), options);
        out << static_cast<int>(answer.error) << '\t' << utf8(answer.line) << '\n';
    }
}

} // namespace

int runCalc(const CalcOptions& options, std::istream& in, std::ostream& out, std::ostream& err) {
    if (options.batch && options.trace) {
        err << "calc : --trace ne va pas avec --batch.\n";
        return kWrongCall;
    }
    if (options.batch) {
        runBatch(options, in, out);
        return 0;
    }
    Hooks hooks;
    if (options.trace)
        hooks.trace = [&out](const char* step, TextView text) {
            out << step << '\t' << utf8(text) << '\n';
        };
    const Answer answer = answerTo(options.expression.toStdU16String(), options, std::move(hooks));
    (answer.error == ErrorCode::None ? out : err) << utf8(answer.line) << '\n';
    return static_cast<int>(answer.error);
}

} // namespace calculator
