#include "literal_rewriting.h"

#include "calculator/checks.h"
#include "calculator/functions.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <cmath>

namespace calculator::test {

namespace {

struct Fault {};

Text mid(const Text& text, int from, int count = 1) {
    if (from < 1 || count < 0)
        throw Fault{};
    return from > static_cast<int>(text.size())
               ? Text()
               : text.substr(static_cast<std::size_t>(from - 1), static_cast<std::size_t>(count));
}

Text left(const Text& text, int count) {
    return text.substr(0, static_cast<std::size_t>(count));
}

Text from(const Text& text, int position) {
    return mid(text, position, 1 << 30);
}

int length(const Text& text) {
    return static_cast<int>(text.size());
}

/// Puts `by` in the place of the `count` characters from `position` on.
void put(Text& text, int position, int count, const Text& by) {
    text = left(text, position - 1) + by + from(text, position + count);
}

Text stripped(const Text& text) {
    Text out;
    for (const char16_t c : text)
        if (c != u' ')
            out += c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c;
    return out;
}

/// Whether `what` stands at the position.
bool stands(const Text& text, int position, TextView what) {
    return position <= length(text) &&
           text.compare(static_cast<std::size_t>(position - 1), what.size(), what) == 0;
}

void insertSpaces(Text& text) {
    text = stripped(text);
    if (stands(text, 1, u"+"))
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
            const Text before = i > 1 ? mid(text, i - 1) : Text();
            const bool exponent = before == u"D" || before == u"E";
            const bool opening = before == u"(" || before == u" ";
            if (mid(text, i) != Text{op} || (op == u'+' && exponent) ||
                (op == u'-' && (exponent || opening)))
                continue;
            put(text, i, 1, {u' ', op, u' '});
            ++i;
        }
    }
}

void unwrapPlainGroup(Text& text, int open) {
    int at = open + 1;
    const auto numeric = [&] {
        const Text c = mid(text, at);
        return !c.empty() && (Text(u".0123456789").find(c) != Text::npos ||
                              (at == open + 1 && (c == u"-" || c == u"+")));
    };
    while (numeric())
        ++at;
    if (mid(text, at) == u")" && at > open + 1) {
        put(text, at, 1, u"");
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
        if (stands(text, 1, u"+"))
            text.erase(0, 1);
        for (int i = 1; i <= length(text); ++i)
            if (stands(text, i, u"("))
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
            const auto function = functionAt(text, static_cast<std::size_t>(i - 1));
            const Text first = mid(text, i + 4);
            if (!function || first.empty() || Text(u"-.0123456789").find(first) == Text::npos)
                continue;
            int end = i + 5;
            while (mid(text, end) != u")" && mid(text, end) != u" ")
                if (++end > length(text))
                    throw Fault{};
            const double x = text::leadingNumber(mid(text, i + 4, end - i - 3));
            const auto value = std::isfinite(x) ? valueOf(*function, x, angles) : std::nullopt;
            if (!value)
                throw Fault{};
            put(text, i, end - i, text::trimmedNumberText(*value));
            --left.nbfonctions;
            i = 1;
        }
    }

    /// Reduces the first `op`; false when there is none.
    bool reduceFirst(Text& expression, char16_t op) {
        const Text spaced{u' ', op, u' '};
        int i = 3;
        while (mid(expression, i, 3) != spaced)
            if (++i > length(expression))
                return false;
        int start = i - 2;
        while (mid(expression, start) != u" ")
            --start;
        int end = i + 4;
        while (mid(expression, end) != u" ")
            if (++end > 32767)
                throw Fault{};
        Text operand = mid(expression, start + 1, i - start - 1);
        if (mid(operand, 1) == u"(")
            operand.erase(0, 1);
        const double a = text::leadingNumber(operand);
        const double b = text::leadingNumber(mid(expression, i + 3, end - i - 3));
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
        const Text order = u"^/*-+";
        for (std::size_t op = 0; op < order.size(); ++op) {
            if (!reduceFirst(expression, order[op]))
                continue;
            if (left.nboperateurs < 1)
                return;
            op = static_cast<std::size_t>(-1);
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
        for (int pass = 1;; ++pass) {
            if (text == remembered)
                cleanUp(text);
            remembered = text;
            if (pass > 100)
                return ErrorCode::Impossible;
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
                break;
        }
        while (!text.empty() && text.front() == u' ')
            text.erase(0, 1);
        while (!text.empty() && text.back() == u' ')
            text.pop_back();
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
