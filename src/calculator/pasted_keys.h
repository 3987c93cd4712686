#pragma once

#include "calculator/keypad.h"

#include <vector>

namespace calculator {

/// The keys that somebody would have pressed for a text from elsewhere.
struct PastedKeys {
    std::vector<const Key*> keys;
    bool endedAtComma = false; ///< which no key types: what stands behind would be another number
};

/// Reads one line of `text`, the first with anything in it, up to a thousand characters: names of
/// functions in any letter case, what the keyboard types, and the signs of print (×, ÷, −, √, π,
/// ²). Every other character is passed over, as it is when it is typed; nothing is evaluated.
PastedKeys pastedKeys(TextView text);

} // namespace calculator
