#include "calculator/groups.h"

#include "calculator/function_table.h"
#include "calculator/gap_text.h"
#include "calculator/normalise.h"

#include <algorithm>

namespace calculator {

namespace {

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

/// Neither sign nor point nor digit only: a clean-up leaves it its parentheses.
bool hasExponent(TextView number) {
    return std::ranges::any_of(number.substr(1), isExponentPart);
}

/// Folds the sign of a negative value with a binary "+" or "-" before it, as a clean-up does;
/// nothing to do after any other neighbour. False when the operator would be read anew: without a
/// left operand it is the sign of its group.
bool foldIntoOperator(GapText& text, std::size_t begin, TextView& value) {
    if (begin < 4 || text[begin - 1] != u' ')
        return true;
    const char16_t op = text[begin - 2];
    if (op != u'+' && op != u'-')
        return true;
    const char16_t operandEnd = text[begin - 4];
    if (value.front() != u'-')
        return operandEnd != u'(';
    if (operandEnd == u'(' || operandEnd == u' ')
        return false;
    text.replace(begin - 2, 1, op == u'-' ? u"+" : u"-");
    value.remove_prefix(1);
    return true;
}

/// The groups of a text, calculated from the last to the first.
class Groups {
public:
    Groups(TextView text, Counters& counters, Effort& effort, const Hooks& hooks)
        : text_(text), counters_(counters), effort_(effort), hooks_(hooks) {
        noteWhetherCleanedUp(text);
    }

    Progress run() {
        do {
            begin_ = text_.rfind(u'(', from_);
            if (begin_ == Text::npos)
                return Progress::Done;
            const std::size_t close = text_.find(u')', begin_);
            if (close == Text::npos)
                return Progress::Fault;
            end_ = close + 1;
            Text inner = text_.substr(begin_ + 1, close - begin_ - 1);
            if (std::ranges::any_of(inner, isFunctionLetter))
                return Progress::Done;
            if (const Progress progress = calculate(inner); progress != Progress::Done)
                return progress;
        } while (counters_.nbparentheses > 0);
        return Progress::Done;
    }

    Text text() const { return text_.text(); }

private:
    Progress calculate(Text& inner) {
        Progress progress = calculoperateurs(inner, counters_, hooks_);
        if (progress != Progress::Done)
            return progress;
        --counters_.nbparentheses;
        const TextView value = trimmed(inner);
        if (isCleanedUp_ && isNumber(value)) {
            progress = takeParenthesesAround(value);
            if (progress != Progress::Done || putNumber(value))
                return progress;
        }
        text_.replace(begin_, end_ - begin_, inner);
        return cleanUp() ? Progress::Done : Progress::Fault;
    }

    /// More parentheses around a number go at once: around a plain one the next clean-up would take
    /// them, and around one with an exponent each pair is a group in which nothing is left to do.
    Progress takeParenthesesAround(TextView number) {
        const bool plain = !hasExponent(number);
        while (text_[begin_ - 1] == u'(' && text_[end_] == u')' &&
               (plain || counters_.nbparentheses > 0)) {
            if (!plain && isCancelled(hooks_))
                return Progress::Cancelled;
            counters_.nbparentheses -= !plain;
            --begin_;
            ++end_;
        }
        return Progress::Done;
    }

    /// Puts a number into its place in a text that a clean-up would leave as it is, so that it
    /// would leave the new one too: between neighbours that cannot join the number, only the sign
    /// next to it matters. That spares a walk over the whole text for every group. False, with the
    /// text as it was, when the neighbours are of another kind.
    bool putNumber(TextView value) {
        const char16_t before = text_[begin_ - 1];
        const char16_t after = text_[end_];
        if ((before != u' ' && before != u'(') || (after != u' ' && after != u')'))
            return false;
        if (!foldIntoOperator(text_, begin_, value))
            return false;
        text_.replace(begin_, end_ - begin_, value);
        from_ = begin_; // what lay behind the last "(" still holds none
        return true;
    }

    /// False when the text has been walked over too often.
    bool cleanUp() {
        const Text text = simplifier(text_.text());
        noteWhetherCleanedUp(text);
        text_ = GapText(text);
        from_ = Text::npos;
        return effort_.spend(text.size());
    }

    void noteWhetherCleanedUp(TextView text) { isCleanedUp_ = simplifier(text) == text; }

    GapText text_;
    Counters& counters_;
    Effort& effort_;
    const Hooks& hooks_;
    bool isCleanedUp_ = false;      ///< a clean-up would leave the text as it is
    std::size_t from_ = Text::npos; ///< no "(" stands behind
    std::size_t begin_ = 0;         ///< the group that is calculated, and what is put in its place
    std::size_t end_ = 0;
};

} // namespace

Progress calculparentheses(Text& text, Counters& counters, Effort& effort, const Hooks& hooks) {
    Groups groups(text, counters, effort, hooks);
    const Progress progress = groups.run();
    text = groups.text();
    return progress;
}

} // namespace calculator
