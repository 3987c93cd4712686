#include "exercises/answer_command.h"

#include "exercises/answer_check.h"
#include "text/line_reader.h"
#include "text/utf8.h"

#include <istream>
#include <ostream>
#include <string_view>

namespace exercises {

namespace {

bool isRight(std::string_view solution, std::string_view text) {
    return castexte(text::toUtf16(solution), text::toUtf16(text));
}

const char* verdict(bool right) {
    return right ? "juste\n" : "faux\n";
}

int runBatch(std::streambuf& in, std::ostream& out, std::ostream& err) {
    int status = 0;
    long number = 0;
    std::string line;
    while (out) {
        const text::Line read = text::readQuestion(in, out, line);
        if (read == text::Line::None)
            break;
        ++number;
        const std::size_t tab = line.find('\t');
        const bool complete = read == text::Line::Whole && tab != std::string::npos;
        if (!complete) {
            err << "orvalente-cours : ligne " << number
                << (read == text::Line::TooLong
                        ? " : elle est trop longue.\n"
                        : " : pas de tabulation entre solution et réponse.\n");
            status = 1;
        }
        const std::string_view whole = line;
        out << verdict(complete && isRight(whole.substr(0, tab), whole.substr(tab + 1)));
    }
    return status;
}

} // namespace

int runAnswer(const AnswerOptions& options, std::istream& in, std::ostream& out,
              std::ostream& err) {
    if (options.batch)
        return runBatch(*in.rdbuf(), out, err);
    const bool right = isRight(options.solution, options.text);
    out << verdict(right);
    return right ? 0 : 1;
}

} // namespace exercises
