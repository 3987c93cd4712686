#include "calculator/checks.h"

#include "calculator/function_table.h"

#include <algorithm>
#include <limits>

namespace calculator {

namespace {

bool isOperator(char16_t c) {
    return c == u'+' || c == u'-' || c == u'*' || c == u'/' || c == u'^';
}

bool fits(std::size_t count) {
    return count <= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max());
}

} // namespace

ErrorCode verifier(TextView text) {
    if (std::ranges::count(text, u'(') != std::ranges::count(text, u')'))
        return ErrorCode::Parentheses;
    for (std::size_t i = 0; i + 2 < text.size(); ++i) {
        const bool examined = text[i] == u'*' || text[i] == u'/' || text[i] == u'^';
        if (examined && text[i + 2] == u' ')
            return ErrorCode::Operators;
    }
    return ErrorCode::None;
}

std::optional<Counters> compter(TextView text) {
    std::size_t parentheses = 0;
    std::size_t functions = 0;
    std::size_t operators = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c == u'(')
            ++parentheses;
        else if (c == u' ')
            operators += i + 2 < text.size() && text[i + 2] == u' ' && isOperator(text[i + 1]);
        else
            functions += functionAt(text, i) != nullptr;
    }
    if (!fits(parentheses) || !fits(functions) || !fits(operators))
        return std::nullopt;
    return Counters{static_cast<std::int16_t>(parentheses), static_cast<std::int16_t>(functions),
                    static_cast<std::int16_t>(operators)};
}

} // namespace calculator
