#pragma once

#include <string>

namespace text {

/// Significant digits that a value's text has at most: what every double can promise.
inline constexpr int kSignificantDigits = 15;

/// The one text of a number: at most 15 significant digits, "." as the point whatever the locale,
/// no "0" before the point, one leading space for a value that is not negative, "-" for one that
/// is: " 42", " .5", "-12.75".
///
/// Plain form is used as long as 15 places on each side of the point show the rounded value whole:
/// from " 999999999999999" down; a third of a tenth needs 16 decimals and is
/// " 3.33333333333333E-02". So do the engines of desktop databases print their doubles; unlike
/// them, magnitudes below 1E-06 always have exponent form, since " 1.5E-07" must. The exponent has
/// a sign and at least two digits: " 1E+15", " 1E+100". Negative zero is " 0".
///
/// `value` must be finite; whoever computed something else has a fault to report, not a number.
std::u16string numberText(double value);

/// The same without the leading space.
std::u16string trimmedNumberText(double value);

} // namespace text
