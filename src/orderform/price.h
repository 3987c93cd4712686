#pragma once

#include <QString>

namespace orderform {

// Amounts are counted in euro cents. The prices are those of this edition, taxes included.

inline constexpr int kUnitPrice = 1990;
inline constexpr int kPostage = 350; ///< of an order, however many copies it is for

inline constexpr int kFewestCopies = 1;
inline constexpr int kMostCopies = 99;

/// What so many copies cost, without and with postage. `copies` up to kMostCopies.
constexpr int copiesAmount(int copies) {
    return copies * kUnitPrice;
}
constexpr int totalAmount(int copies) {
    return copiesAmount(copies) + kPostage;
}

/// "1 973,60 €", its parts held together by no-break spaces. `cents` is 0 or more.
QString euros(int cents);

} // namespace orderform
