#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace exercises {

/// Controls in each of the arrays `Check1` and `Option1`.
inline constexpr int kChoices = 5;

using Selection = std::array<bool, kChoices>;

/// "1" for each selected control, "0" for each other, in control order.
std::u16string choiceCode(const Selection& selection);

/// Whether a given choice code has control `index` selected; false for a code that is too short.
bool isSelectedIn(std::u16string_view code, int index);

/// What is painted beside a choice in a correction.
enum class Mark { InSolution, NotInSolution };

/// Where it is painted, from the control's own place.
inline constexpr double kMarkLeftOfControlTwips = 540;
inline constexpr double kMarkAboveControlTwips = 15;

/// The mark of choice `index`. Only "0" leaves a choice out: another character, or none in a
/// solution that is too short, does not. A question without a solution has no marks.
std::optional<Mark> markOf(const std::optional<std::u16string>& solution, int index);

} // namespace exercises
