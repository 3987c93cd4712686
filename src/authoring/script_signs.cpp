#include "authoring/script_signs.h"

#include <algorithm>

namespace authoring {

void ScriptSigns::take(const FormulaNode& group, FormulaText& source) {
    for (const FormulaNode& node : group.children) {
        if (node.kind == FormulaNode::Kind::Group) {
            take(node, source);
        } else if (node.kind == FormulaNode::Kind::Sign) {
            text_ += node.text;
            italic_.resize(static_cast<std::size_t>(text_.size()), node.italic);
        } else {
            source.fault(node.index,
                         QStringLiteral("un indice ou un exposant ne contient que des lettres, "
                                        "des chiffres et des signes"));
        }
    }
}

std::vector<Slanted> ScriptSigns::runs(qsizetype first, qsizetype last) const {
    std::vector<Slanted> runs;
    for (qsizetype i = first; i < last; ++i) {
        const bool italic = italic_[static_cast<std::size_t>(i)];
        if (runs.empty() || runs.back().italic != italic)
            runs.push_back({{}, italic});
        runs.back().text += text_[i];
    }
    return runs;
}

bool ScriptSigns::isStackable() const {
    return std::none_of(text_.begin(), text_.end(), [](QChar c) { return c.isSurrogate(); });
}

bool ScriptSigns::isUprightLetter(qsizetype index) const {
    return text_[index].isLetter() && !italic_[static_cast<std::size_t>(index)];
}

bool ScriptSigns::slantOf(const ScriptSigns& lower, qsizetype low, const ScriptSigns& upper,
                          qsizetype high) {
    const bool leans = lower.italic_[static_cast<std::size_t>(low)] ||
                       upper.italic_[static_cast<std::size_t>(high)];
    return leans && !lower.isUprightLetter(low) && !upper.isUprightLetter(high);
}

} // namespace authoring
