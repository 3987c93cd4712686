#include "calculator/groups.h"

#include "calculator/normalise.h"

#include <algorithm>

namespace calculator {

namespace {

/// The letters of every function's name but not those of an exponent, "D" and "E".
bool isFunctionLetter(char16_t c) {
    return c >= u'F' && c <= u'Y';
}

} // namespace

Progress calculparentheses(Text& text, Counters& counters, const Hooks& hooks) {
    do {
        const std::size_t open = text.rfind(u'(');
        if (open == Text::npos)
            return Progress::Done;
        const std::size_t close = text.find(u')', open);
        if (close == Text::npos)
            return Progress::Fault;
        Text inner = text.substr(open + 1, close - open - 1);
        if (std::ranges::any_of(inner, isFunctionLetter))
            return Progress::Done;
        const Progress progress = calculoperateurs(inner, counters, hooks);
        if (progress != Progress::Done)
            return progress;
        text.replace(open, close - open + 1, inner);
        --counters.nbparentheses;
        text = simplifier(text);
    } while (counters.nbparentheses > 0);
    return Progress::Done;
}

} // namespace calculator
