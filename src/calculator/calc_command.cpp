#include "calculator/calc_command.h"

#include "calculator/evaluator.h"
#include "text/line_reader.h"
#include "text/utf8.h"

#include <istream>
#include <ostream>

namespace calculator {

namespace {

struct Answer {
    ErrorCode error;
    std::string line; ///< result line or message
};

Answer failure(ErrorCode error) {
    return {error, text::toUtf8(message(error))};
}

Answer answerTo(const std::string& expression, const CalcOptions& options, Hooks hooks = {}) {
    const Evaluation found =
        Evaluator(std::move(hooks)).evaluer(text::toUtf16(expression), options.angles);
    if (found.error != ErrorCode::None)
        return failure(found.error);
    if (const auto line = resultLine(found.text, options.format))
        return {ErrorCode::None, text::toUtf8(*line)};
    return {ErrorCode::Impossible, text::toUtf8(kOverflowMessage)};
}

void runBatch(const CalcOptions& options, std::streambuf& in, std::ostream& out) {
    std::string line;
    while (out) {
        if (in.in_avail() <= 0)
            out.flush();
        const text::Line read = text::readLine(in, line);
        if (read == text::Line::None)
            return;
        const Answer answer =
            read == text::Line::TooLong ? failure(ErrorCode::Impossible) : answerTo(line, options);
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
            out << step << '\t' << text::toUtf8(text) << '\n';
        };
    const Answer answer = answerTo(options.expression, options, std::move(hooks));
    (answer.error == ErrorCode::None ? out : err) << answer.line << '\n';
    return static_cast<int>(answer.error);
}

} // namespace calculator
