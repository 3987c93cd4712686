#include "calculator/key_layout.h"

namespace calculator {

namespace {

constexpr auto kFunction = KeyStyle::Function;
constexpr auto kDigit = KeyStyle::Digit;
constexpr auto kOperator = KeyStyle::Operator;

// clang-format off
constexpr KeyPlace kPlaces[] = {
    {u"Command1", 205, 64, 42, 30, kFunction, 12}, {u"Command2", 251, 64, 42, 30, kFunction, 12},
    {u"Command3", 205, 98, 42, 30, kFunction, 12}, {u"command4", 251, 98, 42, 30, kFunction, 12},

    {u"bsin",     7, 140, 54, 30, kFunction, 12}, {u"Bcos",      65, 140, 54, 30, kFunction, 12},
    {u"Btan",   123, 140, 54, 30, kFunction, 12}, {u"Bpo",      181, 140, 54, 30, kFunction, 13},
    {u"bpf",    239, 140, 54, 30, kFunction, 13},
    {u"invsin",   7, 174, 54, 30, kFunction, 11}, {u"invcos",    65, 174, 54, 30, kFunction, 11},
    {u"Btoncommande3", 123, 174, 54, 30, kFunction, 11},
    {u"pi",     181, 174, 54, 30, kFunction, 13}, {u"command5", 239, 174, 54, 30, kFunction, 12},
    {u"Blog",     7, 208, 54, 30, kFunction, 12}, {u"Bln",       65, 208, 54, 30, kFunction, 13},
    {u"Bexp",   123, 208, 54, 30, kFunction, 12}, {u"B10x",     181, 208, 54, 30, kFunction, 13},
    {u"racine", 239, 208, 54, 30, kFunction, 13},
    {u"btcarre",  7, 242, 54, 30, kFunction, 13}, {u"puissance", 65, 242, 54, 30, kFunction, 13},
    {u"demi",   123, 242, 54, 30, kFunction, 12}, {u"rappel",   181, 242, 112, 30, kFunction, 12},

    {u"kilo",  7, 293, 33, 28, kFunction, 11}, {u"mil",   44, 293, 33, 28, kFunction, 11},
    {u"mega",  7, 325, 33, 28, kFunction, 11}, {u"micro", 44, 325, 33, 28, kFunction, 11},
    {u"giga",  7, 357, 33, 28, kFunction, 11}, {u"nano",  44, 357, 33, 28, kFunction, 11},
    {u"tera",  7, 389, 33, 28, kFunction, 11}, {u"pico",  44, 389, 33, 28, kFunction, 11},

    {u"B7", 85, 293, 37, 28, kDigit, 16}, {u"B8",    125, 293, 37, 28, kDigit, 16}, {u"B9",    165, 293, 37, 28, kDigit, 16},
    {u"B4", 85, 325, 37, 28, kDigit, 16}, {u"B5",    125, 325, 37, 28, kDigit, 16}, {u"B6",    165, 325, 37, 28, kDigit, 16},
    {u"B1", 85, 357, 37, 28, kDigit, 16}, {u"B2",    125, 357, 37, 28, kDigit, 16}, {u"B3",    165, 357, 37, 28, kDigit, 16},
    {u"B0", 85, 389, 37, 28, kDigit, 16}, {u"Bpoint", 125, 389, 37, 28, kDigit, 16}, {u"BtoEXP", 165, 389, 37, 28, kDigit, 12},

    {u"EFFACE", 211, 293, 39, 28, kOperator, 12}, {u"RAZ",   254, 293, 39, 28, kOperator, 12},
    {u"multip", 211, 325, 39, 28, kOperator, 19}, {u"div",   254, 325, 39, 28, kOperator, 19},
    {u"plus",   211, 357, 39, 28, kOperator, 19}, {u"moins", 254, 357, 39, 28, kOperator, 19},
    {u"ANS",    211, 389, 39, 28, kOperator, 12}, {u"EXE",   254, 389, 39, 28, KeyStyle::Main, 19},
};
// clang-format on

} // namespace

std::span<const KeyPlace> keyLayout() {
    return kPlaces;
}

} // namespace calculator
