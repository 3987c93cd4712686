#pragma once

#include "calculator/expression.h"

#include <cstdint>
#include <span>

namespace calculator {

/// What a key does with the text that it appends, or what it does instead.
enum class Rule : std::uint8_t {
    Append,
    Times,       ///< " * " comes first where a factor stands before
    Operator,    ///< nothing on a blank display; the last answer comes first on an empty entry
    Plus,        ///< as Operator; the exponent's sign after "E"
    Minus,       ///< operator or sign, by what stands before
    AfterAnswer, ///< the last answer comes first on an empty entry
    Pi,          ///< appends its number, as Times
    LastAnswer,
    RecallEntry,
    EraseBack,
    EraseAll,
    MemoryAdd,
    MemorySubtract,
    MemoryRecall,
    MemoryClear,
    Evaluate,
};

struct Key {
    TextView name;    ///< of the control
    TextView caption; ///< on its face; "&" stands before the mnemonic
    TextView tooltip;
    TextView appends;
    Rule rule;
    TextView spoken = {}; ///< what it does, where neither caption nor tooltip says so
};

/// All keys, those of the functions from their table. In no order: where a key stands, and when the
/// Tab key visits it, is told by key_layout.
std::span<const Key> keypad();

/// The key of that control; there must be one.
const Key& keyNamed(TextView name);

/// The key that a character typed on the keyboard stands for; null for none.
const Key* keyTyped(char16_t character);

} // namespace calculator
