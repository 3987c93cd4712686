#pragma once

#include <QChar>
#include <QStringView>

#include <span>

namespace calculator {

/// What a key does with the text that it appends, or what it does instead.
enum class Rule {
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
    QStringView name;    ///< of the control
    QStringView caption; ///< on its face; "&" stands before the mnemonic
    QStringView tooltip;
    QStringView appends;
    Rule rule;
};

/// All keys, in the order in which the Tab key visits them.
std::span<const Key> keypad();

/// The key of that control; there must be one.
const Key& keyNamed(QStringView name);

/// The key that a character typed on the keyboard stands for; null for none.
const Key* keyTyped(QChar character);

} // namespace calculator
