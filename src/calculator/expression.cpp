#include "calculator/expression.h"

namespace calculator {

std::optional<Function> functionAt(TextView text, std::size_t position) {
    if (position >= text.size() || text.size() - position < kNameLength)
        return std::nullopt;
    const char16_t second = text[position + 1];
    const char16_t third = text[position + 2];
    const auto rest = [second, third](char16_t b, char16_t c) { return second == b && third == c; };
    switch (text[position]) {
    case u'S':
        if (rest(u'I', u'N'))
            return Function::Sin;
        return rest(u'Q', u'R') ? std::optional(Function::Sqr) : std::nullopt;
    case u'C':
        return rest(u'O', u'S') ? std::optional(Function::Cos) : std::nullopt;
    case u'T':
        return rest(u'A', u'N') ? std::optional(Function::Tan) : std::nullopt;
    case u'L':
        if (rest(u'O', u'G'))
            return Function::Log;
        return rest(u'O', u'N') ? std::optional(Function::Lon) : std::nullopt;
    case u'E':
        return rest(u'X', u'P') ? std::optional(Function::Exp) : std::nullopt;
    case u'I':
        if (rest(u'S', u'I'))
            return Function::Isi;
        if (rest(u'C', u'O'))
            return Function::Ico;
        return rest(u'T', u'A') ? std::optional(Function::Ita) : std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace calculator
