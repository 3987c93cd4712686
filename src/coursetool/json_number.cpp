#include "coursetool/json_number.h"

#include <charconv>
#include <cmath>

namespace coursetool {

namespace {

template <class Number>
void appendShortest(Number number, std::string& out) {
    if (!std::isfinite(number)) {
        out += std::isnan(number) ? "\"NaN\"" : number > 0 ? "\"Infinity\"" : "\"-Infinity\"";
        return;
    }
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, end);
}

} // namespace

void appendJsonNumber(double number, std::string& out) {
    appendShortest(number, out);
}

void appendJsonNumber(float number, std::string& out) {
    appendShortest(number, out);
}

} // namespace coursetool
