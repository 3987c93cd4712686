#include "exercises/choices.h"

namespace exercises {

namespace {

/// What a code has at `index`; neither "0" nor "1" beyond its end.
char16_t codeAt(std::u16string_view code, int index) {
    const auto at = static_cast<std::size_t>(index);
    return at < code.size() ? code[at] : u'\0';
}

} // namespace

std::u16string choiceCode(const Selection& selection) {
    std::u16string code;
    for (const bool selected : selection)
        code += selected ? u'1' : u'0';
    return code;
}

bool isSelectedIn(std::u16string_view code, int index) {
    return codeAt(code, index) == u'1';
}

std::optional<Mark> markOf(const std::optional<std::u16string>& solution, int index) {
    if (!solution)
        return std::nullopt;
    return codeAt(*solution, index) == u'0' ? Mark::NotInSolution : Mark::InSolution;
}

} // namespace exercises
