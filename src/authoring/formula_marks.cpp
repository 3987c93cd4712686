#include "authoring/formula_marks.h"

#include <algorithm>

namespace authoring {

namespace {

bool hasLetter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

/// Takes what braces and "\\mathrm" hold, however deep.
void takeSigns(const FormulaNode& node, FormulaNode& marked, bool& isUpright, FormulaText& source) {
    for (const FormulaNode& sign : node.children) {
        if (sign.kind == FormulaNode::Kind::Group) {
            takeSigns(sign, marked, isUpright, source);
            continue;
        }
        if (sign.kind != FormulaNode::Kind::Sign)
            source.fault(sign.index,
                         QStringLiteral("un signe au-dessus ne va que sur des lettres ; "
                                        "l’indice se met après : \\vec{F}_1"));
        marked.text += sign.text;
        marked.italic = marked.italic || sign.italic;
        isUpright = isUpright || (!sign.italic && hasLetter(sign.text));
    }
}

} // namespace

FormulaNode markedSigns(const FormulaNode& content, QStringView directive, FormulaText& source) {
    FormulaNode marked;
    marked.kind = FormulaNode::Kind::Marked;
    marked.directive = directive.toString();
    // The letters tell the slant; digits and primes go along.
    bool isUpright = false;
    takeSigns(content, marked, isUpright, source);
    marked.italic = marked.italic && !isUpright;
    if (directive == u"CHAPEAU" && marked.text.size() > 1)
        source.fault(content.index, QStringLiteral("un chapeau ne va que sur une lettre"));
    return marked;
}

} // namespace authoring
