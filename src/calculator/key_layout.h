#pragma once

#include "calculator/expression.h"

#include <cstdint>
#include <span>

namespace calculator {

/// How a key looks. The only blue one is "=".
enum class KeyStyle : std::uint8_t { Function, Digit, Operator, Main };

/// Where a key stands in the window and how its caption is set, in logical pixels.
struct KeyPlace {
    TextView name; ///< of the key
    int x;
    int y;
    int width;
    int height;
    KeyStyle style;
    int captionPx;
    bool serif = false; ///< the caption in a face that tells a small "l" from a capital "I"
};

/// Places of all keys, in the order in which the Tab key visits them.
std::span<const KeyPlace> keyLayout();

} // namespace calculator
