#pragma once

#include "calculator/expression.h"

#include <span>

namespace calculator {

/// The key of a function. Where it stands, and how large its caption is, key_layout knows.
struct FunctionKey {
    TextView control; ///< name of the control
    TextView caption; ///< on its face; "&" stands before the mnemonic
    TextView tooltip;
};

/// All that is known of one function; whoever reads, checks, calculates or types functions asks
/// here.
struct Function {
    TextView name;         ///< as it stands in a normalised expression: kNameLength capitals
    TextView typed;        ///< what its key appends, its space included
    TextView abbreviation; ///< in capitals, what stands for the name before it is normalised; or ""
    /// The value at `x`, which is finite. Angles go in, or come out of the inverse functions, in
    /// the unit of `angles`. What is not finite is no value: the function has none there, or one
    /// too large for a double.
    double (*value)(double x, AngleMode angles);
    FunctionKey key;
};

std::span<const Function> functions();

/// The function whose name stands at `position`; null elsewhere and near the end.
const Function* functionAt(TextView text, std::size_t position);

/// The same for abbreviations.
const Function* abbreviatedAt(TextView text, std::size_t position);

/// Whether a name may be told by this letter: every name holds one of them, and none of them is
/// the letter of an exponent, "D" or "E".
constexpr bool isFunctionLetter(char16_t c) {
    return c >= u'F' && c <= u'Y';
}

} // namespace calculator
