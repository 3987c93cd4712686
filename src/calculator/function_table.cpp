#include "calculator/function_table.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace calculator {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// Pi is 4 times this everywhere; the order of the factors below decides the last digit.
double quarterPi() {
    return std::atan(1.0);
}

double toRadians(double x, AngleMode angles) {
    return angles == AngleMode::Radians ? x : x * 4 * quarterPi() / 180;
}

double fromRadians(double x, AngleMode angles) {
    return angles == AngleMode::Radians ? x : x * 180 / (4 * quarterPi());
}

double arcSineInRadians(double x) {
    if (x == 1)
        return 2 * quarterPi();
    if (x == -1)
        return -2 * quarterPi();
    const double root = std::sqrt(1 - x * x);
    return root == 0 ? kNone : std::atan(x / root);
}

double sine(double x, AngleMode angles) {
    return std::sin(toRadians(x, angles));
}

double cosine(double x, AngleMode angles) {
    return std::cos(toRadians(x, angles));
}

double tangent(double x, AngleMode angles) {
    return std::tan(toRadians(x, angles));
}

double arcSine(double x, AngleMode angles) {
    return fromRadians(arcSineInRadians(x), angles);
}

double arcCosine(double x, AngleMode angles) {
    return fromRadians(2 * quarterPi() - arcSineInRadians(x), angles);
}

double arcTangent(double x, AngleMode angles) {
    return fromRadians(std::atan(x), angles);
}

double decimalLogarithm(double x, AngleMode) {
    return std::log(x) / std::log(10.0);
}

double naturalLogarithm(double x, AngleMode) {
    return std::log(x);
}

double exponential(double x, AngleMode) {
    return std::exp(x);
}

double squareRoot(double x, AngleMode) {
    return std::sqrt(x);
}

// clang-format off
constexpr Function kFunctions[] = {
    {u"SIN", u"sin ",    u"",   sine,             {u"bsin",          u"&SIN",     u"Sinus"}},
    {u"COS", u"cos ",    u"",   cosine,           {u"Bcos",          u"&COS",     u"Cosinus"}},
    {u"TAN", u"tan ",    u"",   tangent,          {u"Btan",          u"&TAN",     u"Tangente"}},
    {u"ISI", u"invSIN ", u"",   arcSine,          {u"invsin",        u"INV S&IN", u"Inverse sinus"}},
    {u"ICO", u"invCOS ", u"",   arcCosine,        {u"invcos",        u"INV C&OS", u"Inverse cosinus"}},
    {u"ITA", u"invTAN ", u"",   arcTangent,       {u"Btoncommande3", u"INV T&AN", u"Inverse tangente"}},
    {u"LOG", u"log ",    u"",   decimalLogarithm, {u"Blog",          u"&Log",     u"Logarithme décimal"}},
    {u"LON", u"ln ",     u"LN", naturalLogarithm, {u"Bln",           u"ln",       u"Logarithme népérien"}},
    {u"EXP", u"exp ",    u"",   exponential,      {u"Bexp",          u"exp",      u"Exponentielle"}},
    {u"SQR", u"SQR ",    u"",   squareRoot,       {u"racine",        u"√",        u"Racine carrée"}},
};
// clang-format on

constexpr bool isName(TextView name) {
    return name.size() == kNameLength && name != u"INV" &&
           std::ranges::all_of(name, [](char16_t c) { return c >= u'A' && c <= u'Z'; }) &&
           std::ranges::any_of(name, isFunctionLetter);
}

/// Whether each row can be told from every other, at any position of a text.
constexpr bool isSound() {
    for (const Function& function : kFunctions) {
        if (!isName(function.name) || !function.typed.ends_with(u' ') ||
            std::ranges::count(kFunctions, function.name, &Function::name) != 1)
            return false;
        for (const Function& other : kFunctions)
            if (!other.abbreviation.empty() && function.name.starts_with(other.abbreviation))
                return false;
    }
    return true;
}

static_assert(isSound());

/// A bit for every letter that a name or an abbreviation starts with: most characters of a text are
/// told by it alone.
constexpr std::uint32_t firstLetters(TextView Function::*word) {
    std::uint32_t letters = 0;
    for (const Function& function : kFunctions)
        if (!(function.*word).empty())
            letters |= 1U << ((function.*word).front() - u'A');
    return letters;
}

template <TextView Function::*word>
const Function* startingWith(TextView text, std::size_t position) {
    constexpr std::uint32_t kFirst = firstLetters(word);
    if (position >= text.size())
        return nullptr;
    const char16_t c = text[position];
    if (c < u'A' || c > u'Z' || (kFirst >> (c - u'A') & 1U) == 0)
        return nullptr;
    for (const Function& function : kFunctions) {
        const TextView expected = function.*word;
        if (!expected.empty() && expected.front() == c &&
            text.compare(position, expected.size(), expected) == 0)
            return &function;
    }
    return nullptr;
}

} // namespace

std::span<const Function> functions() {
    return kFunctions;
}

const Function* functionAt(TextView text, std::size_t position) {
    return startingWith<&Function::name>(text, position);
}

const Function* abbreviatedAt(TextView text, std::size_t position) {
    return startingWith<&Function::abbreviation>(text, position);
}

} // namespace calculator
