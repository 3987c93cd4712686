#include "calculator/normalise.h"

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

/// Adds a sign to folded text; nothing doubled and no "+" at the start is left.
void foldSign(Text& out, char16_t sign) {
    if (!out.empty() && isSign(out.back())) {
        sign = product(out.back(), sign);
        out.pop_back();
    }
    if (sign == u'-' || !out.empty())
        out += sign;
}

/// Adds a ")", or takes away the parentheses of the group that it closes when that is a plain
/// number: digits and points, at most one sign before them, at least one character.
void closeGroup(Text& out) {
    std::size_t first = out.size();
    while (first > 0 && isDigitOrPoint(out[first - 1]))
        --first;
    if (first > 0 && isSign(out[first - 1]))
        --first;
    const bool plain = first > 0 && out[first - 1] == u'(' && first < out.size();
    if (!plain) {
        out += u')';
        return;
    }
    if (!isSign(out[first])) {
        out.erase(first - 1, 1);
        return;
    }
    const Text number = out.substr(first + 1);
    const char16_t sign = out[first];
    out.resize(first - 1);
    foldSign(out, sign);
    out += number;
}

/// Signs folded and plain groups opened until nothing of it is left to do. The rules do not depend
/// on their order, so one walk that always finishes what lies behind it gives the same text as
/// walks repeated until nothing changes.
Text fold(TextView text) {
    Text out;
    out.reserve(text.size());
    for (const char16_t c : text) {
        if (isSign(c))
            foldSign(out, c);
        else if (c == u')')
            closeGroup(out);
        else
            out += c;
    }
    return out;
}

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
        } else if (const auto function = functionAt(text, i);
                   function && *function != Function::Lon) {
            out.append(text, i, kNameLength);
            out += u' ';
            i += kNameLength;
        } else if (c == u'L' && startsWith(text, i, u"LN")) {
            out += u"LON ";
            i += 2;
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
    return spaced(fold(capitalsWithoutSpaces(text)));
}

} // namespace calculator
