#include "calculator/groups.h"

#include "calculator/normalise.h"

#include <algorithm>

namespace calculator {

namespace {

/// The letters of every function's name but not those of an exponent, "D" and "E".
bool isFunctionLetter(char16_t c) {
    return c >= u'F' && c <= u'Y';
}

bool isDigitOrPoint(char16_t c) {
    return (c >= u'0' && c <= u'9') || c == u'.';
}

bool isExponentPart(char16_t c) {
    return c == u'E' || c == u'D' || c == u'+' || c == u'-';
}

/// A number and nothing else: "12", "-.5", "1E+20".
bool isNumber(TextView value) {
    const TextView magnitude = value.substr(value.starts_with(u'-') ? 1 : 0);
    return !magnitude.empty() && isDigitOrPoint(magnitude.front()) &&
           isDigitOrPoint(magnitude.back()) && std::ranges::all_of(magnitude, [](char16_t c) {
               return isDigitOrPoint(c) || isExponentPart(c);
           });
}

TextView trimmed(TextView text) {
    const std::size_t first = std::min(text.find_first_not_of(u' '), text.size());
    text.remove_prefix(first);
    return text.substr(0, text.find_last_not_of(u' ') + 1);
}

/// The place of a value in a normalised text: where its group begins and where it has ended.
struct Place {
    std::size_t begin;
    std::size_t end;
};

/// The parentheses that a plain number would lose to the next clean-up belong to its place.
Place withLosingParentheses(TextView text, Place place, TextView value) {
    const bool plain = std::ranges::none_of(value.substr(1), isExponentPart);
    while (plain && text[place.begin - 1] == u'(' && text[place.end] == u')') {
        --place.begin;
        ++place.end;
    }
    return place;
}

/// Folds the sign of a negative value with a binary "+" or "-" before it, as a clean-up does;
/// nothing to do after any other neighbour. False when the operator would be read anew.
bool foldIntoOperator(Text& text, std::size_t begin, TextView& value) {
    if (value.front() != u'-' || begin < 4 || text[begin - 1] != u' ')
        return true;
    char16_t& op = text[begin - 2];
    if (op != u'+' && op != u'-')
        return true;
    const char16_t operandEnd = text[begin - 4];
    if (operandEnd == u'(' || operandEnd == u' ')
        return false;
    op = op == u'-' ? u'+' : u'-';
    value.remove_prefix(1);
    return true;
}

/// Puts `value` into its place in a text that a clean-up would leave as it is, so that it would
/// leave the new one too: between neighbours that cannot join the number, only the parentheses and
/// the sign next to it matter. That spares a walk over the whole text for every group. False, with
/// the text as it was, when the neighbours or the value are of another kind.
bool putNumber(Text& text, Place place, TextView value) {
    if (!isNumber(value))
        return false;
    place = withLosingParentheses(text, place, value);
    const char16_t before = text[place.begin - 1];
    const char16_t after = text[place.end];
    if ((before != u' ' && before != u'(') || (after != u' ' && after != u')'))
        return false;
    if (!foldIntoOperator(text, place.begin, value))
        return false;
    text.replace(place.begin, place.end - place.begin, value);
    return true;
}

bool isCleanedUp(const Text& text) {
    return simplifier(text) == text;
}

} // namespace

Progress calculparentheses(Text& text, Counters& counters, const Hooks& hooks) {
    bool cleanedUp = isCleanedUp(text);
    std::size_t from = Text::npos;
    do {
        const std::size_t open = text.rfind(u'(', from);
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
        --counters.nbparentheses;
        if (cleanedUp && putNumber(text, {open, close + 1}, trimmed(inner))) {
            from = open; // what lay behind the last "(" still holds none
            continue;
        }
        text.replace(open, close - open + 1, inner);
        text = simplifier(text);
        cleanedUp = isCleanedUp(text);
        from = Text::npos;
    } while (counters.nbparentheses > 0);
    return Progress::Done;
}

} // namespace calculator
