#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace common {

/// Part of a formula; formula.h has the language.
struct FormulaPart {
    enum class Kind { Text, Scripts, Fraction, Root, Vector, Overline };

    Kind kind = Kind::Text;
    std::u16string text;             ///< Text
    bool italic = false;             ///< Text
    std::vector<FormulaPart> first;  ///< index; numerator; what is under root, arrow or bar
    std::vector<FormulaPart> second; ///< exponent; denominator
};

using FormulaRow = std::vector<FormulaPart>;

/// The parts of a formula. An unknown or unfinished command stands as it was written.
FormulaRow formulaParts(std::u16string_view source);

/// A formula as one says it: "y indice S égale h plus v indice 0y au carré sur 2 g".
std::u16string formulaInWords(std::u16string_view source);

} // namespace common
