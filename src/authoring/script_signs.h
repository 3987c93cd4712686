#pragma once

#include "authoring/formula.h"

#include <optional>

namespace authoring {

/// A text of one slant.
struct Slanted {
    QString text;
    bool italic = false;
};

/// The signs of an index or an exponent, parted where their slant changes.
class ScriptSigns {
public:
    /// What is no sign is a fault.
    ScriptSigns(const FormulaNode& group, FormulaText& source) { take(group, source); }

    bool isEmpty() const { return text_.isEmpty(); }
    qsizetype size() const { return text_.size(); }
    QChar operator[](qsizetype index) const { return text_[index]; }
    std::vector<Slanted> runs() const { return runs(0, size()); }
    std::vector<Slanted> runs(qsizetype first, qsizetype last) const;

    /// Whether each of its characters can stand over or under another: none takes two units.
    bool isStackable() const;

    /// The slant of a sign and the one above it, which have one between them: that of the letters,
    /// upright where these differ.
    static bool slantOf(const ScriptSigns& lower, qsizetype low, const ScriptSigns& upper,
                        qsizetype high);

private:
    void take(const FormulaNode& group, FormulaText& source);
    bool isUprightLetter(qsizetype index) const;

    QString text_;
    std::vector<bool> italic_; ///< by character
};

} // namespace authoring
