#pragma once

#include <string>
#include <vector>

namespace common {

/// A quantity and what is read of it; without a name the value, words or a formula, stands alone.
struct Reading {
    std::u16string name;  ///< a formula
    std::u16string value; ///< plain, with its unit
    std::u16string spoken =
        {}; ///< the name as a screen reader says it; empty when that is the same
};

/// Readings with a name in common, `perLine` at most beside each other.
struct ReadingGroup {
    std::u16string name;
    std::vector<Reading> readings;
    std::size_t perLine = 1;
};

/// For who does not see it: "À l’instant : x = 2,00 m ; y = 3,00 m."
std::u16string readingsInWords(const ReadingGroup& group);

} // namespace common
