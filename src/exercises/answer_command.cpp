#include "exercises/answer_command.h"

#include "exercises/answer_check.h"
#include "jet/unicode.h"

#include <istream>
#include <ostream>
#include <string_view>

namespace exercises {

namespace {

/// Longest line, in bytes, that a batch takes up: far beyond what anybody types, and little enough
/// to hold in memory whatever the input is.
constexpr std::size_t kLongestLine = 1'000'000;

bool isRight(std::string_view solution, std::string_view text) {
    return castexte(jet::toUtf16(solution), jet::toUtf16(text));
}

const char* verdict(bool right) {
    return right ? "juste\n" : "faux\n";
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

int runBatch(std::istream& in, std::ostream& out, std::ostream& err) {
    int status = 0;
    long number = 0;
    std::string line;
    for (Line read = readLine(in, line); read != Line::None; read = readLine(in, line)) {
        ++number;
        const std::size_t tab = line.find('\t');
        const bool complete = read == Line::Whole && tab != std::string::npos;
        if (!complete) {
            err << "answer : ligne " << number
                << (read == Line::TooLong ? " : elle est trop longue.\n"
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
        return runBatch(in, out, err);
    const bool right = isRight(options.solution, options.text);
    out << verdict(right);
    return right ? 0 : 1;
}

} // namespace exercises
