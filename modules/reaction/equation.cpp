#include "reaction/equation.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace reaction {

const std::array<Reaction, 6> kReactions = {{
    {u"Combustion du méthane",
     u"méthane",
     4,
     {{{u"méthane", u"CH₄", u"(g)", 1},
       {u"dioxygène", u"O₂", u"(g)", 2},
       {u"dioxyde de carbone", u"CO₂", u"(g)", 1},
       {u"eau", u"H₂O", u"(g)", 2}}}},
    {u"Combustion du propane",
     u"propane",
     4,
     {{{u"propane", u"C₃H₈", u"(g)", 1},
       {u"dioxygène", u"O₂", u"(g)", 5},
       {u"dioxyde de carbone", u"CO₂", u"(g)", 3},
       {u"eau", u"H₂O", u"(g)", 4}}}},
    {u"Synthèse de l’eau",
     u"eau",
     3,
     {{{u"dihydrogène", u"H₂", u"(g)", 2},
       {u"dioxygène", u"O₂", u"(g)", 1},
       {u"eau", u"H₂O", u"(g)", 2}}}},
    {u"Combustion de l’aluminium",
     u"aluminium",
     3,
     {{{u"aluminium", u"Al", u"(s)", 4},
       {u"dioxygène", u"O₂", u"(g)", 3},
       {u"oxyde d’aluminium", u"Al₂O₃", u"(s)", 2}}}},
    {u"Zinc et acide chlorhydrique",
     u"zinc",
     4,
     {{{u"zinc", u"Zn", u"(s)", 1},
       {u"ion hydrogène", u"H⁺", u"(aq)", 2},
       {u"ion zinc", u"Zn²⁺", u"(aq)", 1},
       {u"dihydrogène", u"H₂", u"(g)", 1}}}},
    {u"Hydroxyde de cuivre",
     u"cuivre",
     3,
     {{{u"ion cuivre", u"Cu²⁺", u"(aq)", 1},
       {u"ion hydroxyde", u"HO⁻", u"(aq)", 2},
       {u"hydroxyde de cuivre", u"Cu(OH)₂", u"(s)", 1}}}},
}};

namespace {

enum class Line { On, Below, Above };

struct Sign {
    Line line;
    QChar plain;
};

/// Where a sign stands, and as what.
Sign signOf(QChar written) {
    static const QString kBelow = QStringLiteral("₀₁₂₃₄₅₆₇₈₉");
    static const QString kAbove = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻");
    static const QString kPlain = QStringLiteral("0123456789+−");
    if (const qsizetype at = kBelow.indexOf(written); at >= 0)
        return {Line::Below, kPlain[at]};
    if (const qsizetype at = kAbove.indexOf(written); at >= 0)
        return {Line::Above, kPlain[at]};
    return {Line::On, written};
}

QString opening(Line line) {
    return line == Line::Below   ? QStringLiteral("_{")
           : line == Line::Above ? QStringLiteral("^{")
                                 : QStringLiteral("\\text{");
}

/// The two sides, each species written by `write`.
template <class Write>
QString sides(const Reaction& reaction, Write write) {
    QStringList reactants;
    QStringList products;
    for (const Species& one : reaction.species()) {
        QStringList& side =
            static_cast<std::size_t>(reactants.size()) < kReactants ? reactants : products;
        const QString coefficient =
            one.coefficient > 1 ? QString::number(one.coefficient) + u'\u00A0' : QString();
        side += coefficient + write(one);
    }
    return reactants.join(QStringLiteral(" + ")) + QStringLiteral(" → ") +
           products.join(QStringLiteral(" + "));
}

} // namespace

const Reaction* reactionOf(const QString& key) {
    const auto* found =
        std::find_if(kReactions.begin(), kReactions.end(),
                     [&](const Reaction& one) { return key == QStringView(one.key); });
    return found == kReactions.end() ? nullptr : found;
}

QString formulaOf(const char16_t* species) {
    QString formula;
    std::optional<Line> now;
    for (const QChar written : QString::fromUtf16(species)) {
        const Sign sign = signOf(written);
        if (now != sign.line)
            formula += (now ? QStringLiteral("}") : QString()) + opening(sign.line);
        now = sign.line;
        formula += sign.plain;
    }
    return formula + u'}';
}

QString equation(const Reaction& reaction) {
    return sides(reaction, [](const Species& one) {
        return QString::fromUtf16(one.formula) + QString::fromUtf16(one.state);
    });
}

QString equationFormula(const Reaction& reaction) {
    return sides(reaction, [](const Species& one) {
        return formulaOf(one.formula) +
               QStringLiteral("\\text{%1}").arg(QString::fromUtf16(one.state));
    });
}

} // namespace reaction
