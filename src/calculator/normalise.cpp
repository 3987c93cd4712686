#include "calculator/normalise.h"

#include "calculator/function_table.h"

#include <utility>
#include <vector>

namespace calculator {

namespace {

/// Capital of a letter of Windows' western code page. A small "ù" is a capital "Ù" before any rule
/// could look for it: the sign is not taken for a square root.
char16_t capital(char16_t c) {
    if (c >= u'a' && c <= u'z')
        return static_cast<char16_t>(c - 32);
    if (c >= u'\u00E0' && c <= u'\u00FE' && c != u'\u00F7')
        return static_cast<char16_t>(c - 32);
    return c == u'\u00FF' ? u'\u0178' : c;
}

Text capitalsWithoutSpaces(TextView text) {
    Text out;
    out.reserve(text.size());
    for (const char16_t c : text) {
        if (c != u' ')
            out += capital(c);
    }
    return out;
}

bool isSign(char16_t c) {
    return c == u'+' || c == u'-';
}

bool isDigitOrPoint(char16_t c) {
    return (c >= u'0' && c <= u'9') || c == u'.';
}

/// The one sign that two neighbours amount to.
char16_t product(char16_t first, char16_t second) {
    return first == second ? u'+' : u'-';
}

/// Whether signs stand beside each other or at the start, or a group is plain (see Folding). Nearly
/// every clean-up finds nothing of it.
bool hasSomethingToFold(TextView text) {
    bool inGroup = false; // since the last "(" there was at most a sign, then digits and points
    char16_t before = u'+';
    for (const char16_t c : text) {
        if (isSign(c)) {
            if (isSign(before))
                return true;
            inGroup = inGroup && before == u'(';
        } else if (c == u')') {
            if (inGroup && before != u'(')
                return true;
            inGroup = false;
        } else if (!isDigitOrPoint(c)) {
            inGroup = c == u'(';
        }
        before = c;
    }
    return false;
}

/// Signs folded and plain groups opened until nothing of it is left to do. The rules do not depend
/// on their order, so one walk that always finishes what lies behind it gives the same text as
/// walks repeated until nothing changes.
///
/// Plain is a group of digits and points, at most one sign before them, at least one character. A
/// run of digits and points is one token, so that a long one in many parentheses is not walked over
/// at each of them; runs that come together, as those of "3(2)", are chained.
class Folding {
public:
    explicit Folding(TextView text) : text_(text) { tokens_.reserve(text.size()); }

    Text folded() && {
        for (std::size_t i = 0; i < text_.size();) {
            const char16_t c = text_[i];
            if (isDigitOrPoint(c)) {
                const std::size_t begin = i;
                while (i < text_.size() && isDigitOrPoint(text_[i]))
                    ++i;
                runs_.push_back({begin, i - begin});
                addDigits({kDigits, runs_.size() - 1, runs_.size() - 1});
                continue;
            }
            if (isSign(c))
                addSign(c);
            else if (c == u')')
                closeGroup();
            else
                tokens_.push_back({c});
            ++i;
        }
        return written();
    }

private:
    static constexpr char16_t kDigits = u'0'; ///< what stands for a chain of runs
    static constexpr std::size_t kNone = Text::npos;

    struct Run {
        std::size_t begin;
        std::size_t length;
        std::size_t next = kNone; ///< in the chain
    };
    struct Token {
        char16_t c;
        std::size_t firstRun = kNone;
        std::size_t lastRun = kNone;
    };

    void addDigits(const Token& digits) {
        if (tokens_.empty() || tokens_.back().c != kDigits) {
            tokens_.push_back(digits);
            return;
        }
        runs_[tokens_.back().lastRun].next = digits.firstRun;
        tokens_.back().lastRun = digits.lastRun;
    }

    /// Nothing doubled and no "+" at the start is left.
    void addSign(char16_t sign) {
        if (!tokens_.empty() && isSign(tokens_.back().c)) {
            sign = product(tokens_.back().c, sign);
            tokens_.pop_back();
        }
        if (sign == u'-' || !tokens_.empty())
            tokens_.push_back({sign});
    }

    /// Adds a ")", or takes away the parentheses of a plain group that it closes.
    void closeGroup() {
        const std::size_t size = tokens_.size();
        const bool hasDigits = size > 0 && tokens_.back().c == kDigits;
        std::size_t first = size - hasDigits;
        const bool hasSign = first > 0 && isSign(tokens_[first - 1].c);
        first -= hasSign;
        if (first == 0 || first == size || tokens_[first - 1].c != u'(') {
            tokens_.push_back({u')'});
            return;
        }
        const Token sign = tokens_[first];
        const Token digits = tokens_.back();
        tokens_.resize(first - 1);
        if (hasSign)
            addSign(sign.c);
        if (hasDigits)
            addDigits(digits);
    }

    Text written() const {
        Text out;
        out.reserve(text_.size());
        for (const Token& token : tokens_) {
            if (token.c != kDigits)
                out += token.c;
            for (std::size_t run = token.firstRun; run != kNone; run = runs_[run].next)
                out += text_.substr(runs_[run].begin, runs_[run].length);
        }
        return out;
    }

    TextView text_;
    std::vector<Token> tokens_;
    std::vector<Run> runs_;
};

bool isExponentLetter(char16_t c) {
    return c == u'D' || c == u'E';
}

/// Whether the operator character `c` stands between operands, seen from what is before it. "-"
/// after "(", a space or an exponent's letter belongs to its number; "+" only after the letter.
bool isBinary(char16_t c, char16_t before) {
    switch (c) {
    case u'^':
    case u'*':
    case u'/':
        return true;
    case u'+':
        return !isExponentLetter(before);
    case u'-':
        return !isExponentLetter(before) && before != u'(' && before != u' ';
    default:
        return false;
    }
}

bool startsWith(TextView text, std::size_t position, TextView what) {
    return text.compare(position, what.size(), what) == 0;
}

/// The walk of espacer over `text`, which has its space at the end; the one in front is in `out`.
/// Every rule looks at what its forerunners left: behind, that is `out`, and ahead only "INV"
/// changes anything.
void placeSpaces(Text text, Text& out) {
    for (std::size_t i = 0; i < text.size();) {
        const char16_t c = text[i];
        if (isBinary(c, out.back())) {
            out += {u' ', c, u' '};
            ++i;
        } else if (const Function* const named = functionAt(text, i);
                   named && named->abbreviation.empty()) {
            out += named->name;
            out += u' ';
            i += kNameLength;
        } else if (const Function* const function = abbreviatedAt(text, i)) {
            out += function->name;
            out += u' ';
            i += function->abbreviation.size();
        } else if (c == u'I' && startsWith(text, i, u"INV")) {
            // "INVSIN" -> "ISI ": the letter after the next two gives way to the space.
            out += c;
            i += kNameLength;
            i + 2 < text.size() ? static_cast<void>(text[i + 2] = u' ')
                                : static_cast<void>(text += u' ');
        } else {
            out += c;
            ++i;
        }
    }
}

/// espacer for a text that has neither spaces nor small letters.
Text spaced(Text text) {
    if (!text.empty() && text.front() == u'+')
        text.erase(0, 1);
    Text out;
    out.reserve(text.size() * 2 + 2);
    out += u' ';
    text += u' ';
    placeSpaces(std::move(text), out);
    return out;
}

} // namespace

Text espacer(TextView text) {
    return spaced(capitalsWithoutSpaces(text));
}

Text simplifier(TextView text) {
    Text typed = capitalsWithoutSpaces(text);
    return spaced(hasSomethingToFold(typed) ? Folding(typed).folded() : std::move(typed));
}

} // namespace calculator
