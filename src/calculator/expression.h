#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace calculator {

/// An expression is one text, rewritten until a single number is left. Normalised, it starts and
/// ends with a space, binary operators have one on each side, a number's own sign is glued to it,
/// and a function is three capital letters and a space: " 2 * SIN (30 + -4) ".
using Text = std::u16string;
using TextView = std::u16string_view;

enum class AngleMode : std::int16_t { Degrees = 0, Radians = 1 };

/// The numbers are those that the course tool prints.
enum class ErrorCode : std::int16_t { None = 0, Impossible = 1, Parentheses = 2, Operators = 3 };

/// Letters of a function's name.
inline constexpr std::size_t kNameLength = 3;

/// What is left to be done, counted at any position of a text. 16-bit on purpose: a text with more
/// than 32,767 of one kind cannot be calculated.
struct Counters {
    std::int16_t nbparentheses = 0; ///< "("
    std::int16_t nbfonctions = 0;   ///< names of functions
    std::int16_t nboperateurs = 0;  ///< operators between two spaces

    bool operator==(const Counters&) const = default;
};

/// What may watch an evaluation. Empty members are never asked.
struct Hooks {
    /// Asked before every group and every operator; true ends the evaluation at once.
    std::function<bool()> cancelled;
    /// Told the step and the text that it leaves; within a group that is the group's own text.
    std::function<void(const char* step, TextView text)> trace;
};

inline bool isCancelled(const Hooks& hooks) {
    return hooks.cancelled && hooks.cancelled();
}

} // namespace calculator
