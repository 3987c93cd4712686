#include "text/numeric_reader.h"

#include <charconv>
#include <cstdlib>
#include <limits>
#include <string>

namespace text {

namespace {

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == u'\u00A0';
}

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

/// Walks over a text and passes over blanks on the way.
class Cursor {
public:
    explicit Cursor(std::u16string_view input) : rest_(input) { skipBlanks(); }

    char16_t peek() const { return rest_.empty() ? u'\0' : rest_.front(); }

    char16_t take() {
        const char16_t c = peek();
        if (!rest_.empty())
            rest_.remove_prefix(1);
        skipBlanks();
        return c;
    }

private:
    void skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front()))
            rest_.remove_prefix(1);
    }

    std::u16string_view rest_;
};

bool takeDigits(Cursor& cursor, std::string& digits) {
    bool any = false;
    while (isDigit(cursor.peek())) {
        digits += static_cast<char>(cursor.take());
        any = true;
    }
    return any;
}

/// The exponent part, appended to `number` only when at least one digit follows the letter.
void takeExponent(Cursor cursor, std::string& number) {
    const char16_t letter = cursor.peek();
    if (letter != u'E' && letter != u'e' && letter != u'D' && letter != u'd')
        return;
    cursor.take();
    std::string exponent = "e";
    if (cursor.peek() == u'-' || cursor.peek() == u'+')
        exponent += static_cast<char>(cursor.take());
    if (takeDigits(cursor, exponent))
        number += exponent;
}

#ifdef __cpp_lib_to_chars

double valueOf(const std::string& number) {
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        // from_chars does not say which end of the range was left; the exponent's sign does.
        value =
            number.find("e-") != std::string::npos ? 0 : std::numeric_limits<double>::infinity();
    }
    return value;
}

#else

/// libc++ has no from_chars for numbers with a point. In browsers there is no locale that would
/// give strtod another point.
double valueOf(const std::string& number) {
    return std::strtod(number.c_str(), nullptr);
}

#endif

} // namespace

double leadingNumber(std::u16string_view input) {
    Cursor cursor(input);
    bool negative = false;
    if (cursor.peek() == u'-' || cursor.peek() == u'+')
        negative = cursor.take() == u'-';

    std::string number;
    bool any = takeDigits(cursor, number);
    if (cursor.peek() == u'.') {
        cursor.take();
        number += number.empty() ? "0." : ".";
        any = takeDigits(cursor, number) || any;
    }
    if (!any)
        return 0;
    takeExponent(cursor, number);

    const double value = valueOf(number);
    return negative ? -value : value;
}

} // namespace text
