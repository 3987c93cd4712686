#include "literal_rewriting.h"

#include "calculator/checks.h"
#include "calculator/function_table.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <cmath>

namespace calculator::test {

namespace {

struct Fault {};

int length(const Text& text) {
    return static_cast<int>(text.size());
}

/// The character at a position; none beyond the end.
char16_t at(const Text& text, int position) {
    if (position < 1)
        throw Fault{};
    return position <= length(text) ? text[static_cast<std::size_t>(position - 1)] : u'\0';
}

bool stands(const Text& text, int position, TextView what) {
    return position <= length(text) &&
           text.compare(static_cast<std::size_t>(position - 1), what.size(), what) == 0;
}

/// The characters from `first` up to, not including, `end`.
Text between(const Text& text, int first, int end) {
    return text.substr(static_cast<std::size_t>(first - 1), static_cast<std::size_t>(end - first));
}

/// Puts `by` in the place of the `count` characters from `position` on.
void put(Text& text, int position, int count, const Text& by) {
    text.replace(std::min(static_cast<std::size_t>(position - 1), text.size()),
                 static_cast<std::size_t>(count), by);
}

Text stripped(const Text& text) {
    Text out;
    for (const char16_t c : text)
        if (c != u' ')
            out += c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c;
    return out;
}

void insertSpaces(Text& text) {
    text = stripped(text);
    if (at(text, 1) == u'+')
        text.erase(0, 1);
    text = u" " + text + u" ";
    const int bound = 3 * length(text);
    for (int i = 1; i <= bound; ++i) {
        if (stands(text, i, u"LN"))
            put(text, i + 1, 1, u"ON ");
        for (const TextView name :
             {u"SQR", u"SIN", u"COS", u"LOG", u"TAN", u"ISI", u"EXP", u"ITA", u"ICO"})
            if (stands(text, i, name))
                put(text, i + 3, 0, u" ");
        if (stands(text, i, u"INV")) {
            put(text, i + 1, 2, u"");
            put(text, i + 3, 1, u" ");
        }
        for (const char16_t op : {u'^', u'*', u'/', u'+', u'-'}) {
            const char16_t before = i > 1 ? at(text, i - 1) : u'\0';
            const bool exponent = before == u'D' || before == u'E';
            const bool opening = before == u'(' || before == u' ';
            if (at(text, i) != op || (op == u'+' && exponent) ||
                (op == u'-' && (exponent || opening)))
                continue;
            put(text, i, 1, {u' ', op, u' '});
            ++i;
        }
    }
}

bool isDigitOrPoint(char16_t c) {
    return (c >= u'0' && c <= u'9') || c == u'.';
}

void unwrapPlainGroup(Text& text, int open) {
    int i = open + 1;
    if (at(text, i) == u'-' || at(text, i) == u'+')
        ++i;
    while (isDigitOrPoint(at(text, i)))
        ++i;
    if (at(text, i) == u')' && i > open + 1) {
        put(text, i, 1, u"");
        put(text, open, 1, u"");
    }
}

void cleanUp(Text& text) {
    text = stripped(text);
    Text remembered;
    do {
        remembered = text;
        for (int i = 1, end = length(text); i <= end; ++i)
            for (const auto& [pair, sign] :
                 {std::pair{u"--", u"+"}, {u"+-", u"-"}, {u"-+", u"-"}, {u"++", u"+"}})
                if (stands(text, i, pair))
                    put(text, i, 2, sign);
        if (at(text, 1) == u'+')
            text.erase(0, 1);
        for (int i = 1; i <= length(text); ++i)
            if (at(text, i) == u'(')
                unwrapPlainGroup(text, i);
    } while (text != remembered);
    insertSpaces(text);
}

struct Machine {
    Text text;
    AngleMode angles;
    Counters left{};

    void count() {
        const auto counted = compter(text);
        if (!counted)
            throw Fault{};
        left = *counted;
    }

    void evaluateFunctions() {
        for (int i = 2; i < length(text) && left.nbfonctions > 0; ++i) {
            const Function* const function = functionAt(text, static_cast<std::size_t>(i - 1));
            const char16_t first = at(text, i + 4);
            if (!function || (first != u'-' && !isDigitOrPoint(first)))
                continue;
            int end = i + 5;
            while (at(text, end) != u')' && at(text, end) != u' ')
                if (++end > length(text))
                    throw Fault{};
            const double x = text::leadingNumber(between(text, i + 4, end + 1));
            const double value = function->value(x, angles);
            if (!std::isfinite(x) || !std::isfinite(value))
                throw Fault{};
            put(text, i, end - i, text::trimmedNumberText(value));
            --left.nbfonctions;
            i = 1;
        }
    }

    /// Reduces the first `op`; false when there is none.
    bool reduceFirst(Text& expression, char16_t op) {
        int i = 3;
        while (!stands(expression, i, Text{u' ', op, u' '}))
            if (++i > length(expression))
                return false;
        int start = i - 2;
        while (at(expression, start) != u' ')
            --start;
        int end = i + 4;
        while (at(expression, end) != u' ')
            if (++end > 32767)
                throw Fault{};
        const int operand = start + (at(expression, start + 1) == u'(' ? 2 : 1);
        const double a = text::leadingNumber(between(expression, operand, i));
        const double b = text::leadingNumber(between(expression, i + 3, end));
        const double value = op == u'^'   ? std::pow(a, b)
                             : op == u'/' ? a / b
                             : op == u'*' ? a * b
                             : op == u'-' ? a - b
                                          : a + b;
        if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(value))
            throw Fault{};
        put(expression, start + 1, end - start - 1, text::trimmedNumberText(value));
        --left.nboperateurs;
        return true;
    }

    void evaluateOperators(Text& expression) {
        cleanUp(expression);
        const TextView order = u"^/*-+";
        for (std::size_t op = 0; op < order.size();) {
            if (!reduceFirst(expression, order[op]))
                ++op;
            else if (left.nboperateurs < 1)
                return;
            else
                op = 0;
        }
    }

    void evaluateGroups() {
        do {
            const std::size_t open = text.rfind(u'(');
            if (open == Text::npos)
                return;
            const std::size_t close = text.find(u')', open);
            if (close == Text::npos)
                throw Fault{};
            Text inner = text.substr(open + 1, close - open - 1);
            for (const char16_t c : inner)
                if (c >= 70 && c <= 89)
                    return;
            cleanUp(inner);
            evaluateOperators(inner);
            text.replace(open, close - open + 1, inner);
            --left.nbparentheses;
            cleanUp(text);
        } while (left.nbparentheses > 0);
    }

    ErrorCode run() {
        cleanUp(text);
        if (const ErrorCode error = verifier(text); error != ErrorCode::None)
            return error;
        count();
        Text remembered;
        for (int pass = 1; pass <= 100; ++pass) {
            if (text == remembered)
                cleanUp(text);
            remembered = text;
            if (left.nbfonctions > 0) {
                evaluateFunctions();
                cleanUp(text);
            }
            if (left.nbparentheses > 0)
                evaluateGroups();
            count();
            if (left.nbfonctions > 0 || left.nbparentheses > 0)
                continue;
            if (left.nboperateurs > 0)
                evaluateOperators(text);
            count();
            if (left.nboperateurs < 1)
                return finish();
        }
        return ErrorCode::Impossible;
    }

    ErrorCode finish() {
        const std::size_t first = std::min(text.find_first_not_of(u' '), text.size());
        text = text.substr(first, text.find_last_not_of(u' ') + 1 - first);
        return text.find(u' ') == Text::npos ? ErrorCode::None : ErrorCode::Impossible;
    }
};

} // namespace

Evaluation evaluateLiterally(Text text, AngleMode angles) {
    Machine machine{std::move(text), angles};
    try {
        const ErrorCode error = machine.run();
        return {machine.text, error};
    } catch (const Fault&) {
        return {machine.text, ErrorCode::Impossible};
    }
}

} // namespace calculator::test
