#include "calculator/calc_command.h"

#include "calculator/answer.h"
#include "text/line_reader.h"
#include "text/utf8.h"

#include <istream>
#include <ostream>
#include <utility>

namespace calculator {

namespace {

Answer answerToLine(const std::string& line, const CalcOptions& options, Hooks hooks = {}) {
    return answerTo(text::toUtf16(line), options.angles, options.format, std::move(hooks));
}

void runBatch(const CalcOptions& options, std::streambuf& in, std::ostream& out) {
    std::string line;
    while (out) {
        const text::Line read = text::readQuestion(in, out, line);
        if (read == text::Line::None)
            return;
        const Answer answer = read == text::Line::TooLong ? answerWith(ErrorCode::Impossible)
                                                          : answerToLine(line, options);
        out << statusOf(answer) << '\t' << text::toUtf8(answer.line) << '\n';
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
    const Answer answer = answerToLine(options.expression, options, std::move(hooks));
    (answer.isMessage ? err : out) << text::toUtf8(answer.line) << '\n';
    return statusOf(answer);
}

} // namespace calculator
