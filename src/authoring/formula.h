#pragma once

#include "authoring/positions.h"

#include <QString>

#include <algorithm>
#include <vector>

namespace authoring {

/// A formula, taken apart.
struct FormulaNode {
    enum class Kind {
        Group,
        Sign,    ///< `text`, letters and digits among them
        Scripts, ///< children: base, index, exponent; without a base they stand before what follows
        Fraction, ///< children: numerator, denominator
        Root,     ///< one child
        Marked,   ///< `text` with the mark of `directive`
        Tall,     ///< a bracket as tall as a fraction, drawn by `directive`
        Arrow     ///< of a reaction, drawn by `directive`
    };
    enum class Role { Ordinary, Relation, Binary, Opening, Closing, Function, Slash, Separator };

    Kind kind = Kind::Group;
    Role role = Role::Ordinary;
    bool italic = false;
    QString text = {};
    QString directive = {}; ///< without "##"
    std::vector<FormulaNode> children = {};
    qsizetype index = 0; ///< of its first character in the formula

    bool empty() const { return kind == Kind::Group && children.empty(); }
    /// Whether it is of a kind, or has something of it within.
    bool holds(Kind sought) const {
        return kind == sought ||
               std::any_of(children.begin(), children.end(),
                           [sought](const FormulaNode& child) { return child.holds(sought); });
    }
};

/// The characters of a formula and where they come from.
class FormulaText {
public:
    /// `at` is the offset of the first character in the source.
    FormulaText(QString text, std::size_t at, Faults& faults)
        : text_(std::move(text)), at_(at), faults_(faults) {}

    const QString& text() const { return text_; }
    std::size_t offset(qsizetype index) const {
        return at_ + static_cast<std::size_t>(text_.first(index).toUtf8().size());
    }
    void fault(qsizetype index, const QString& sentence) { faults_.add(offset(index), sentence); }

private:
    QString text_;
    std::size_t at_;
    Faults& faults_;
};

/// Reads the subset of TeX that docs/markdown.md lists. What is not of it is a fault.
FormulaNode readFormula(FormulaText& source);

/// Reads what stands between the braces of "\ce", the characters from `first` to before `last`.
FormulaNode readChemistry(FormulaText& source, qsizetype first, qsizetype last);

} // namespace authoring
