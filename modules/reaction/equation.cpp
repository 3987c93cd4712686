#include "reaction/equation.h"

#include "common/entries.h"
#include "common/words.h"

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
    char16_t plain;
};

/// Where a sign stands, and as what.
Sign signOf(char16_t written) {
    constexpr std::u16string_view kBelow = u"₀₁₂₃₄₅₆₇₈₉";
    constexpr std::u16string_view kAbove = u"⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻";
    constexpr std::u16string_view kPlain = u"0123456789+−";
    if (const std::size_t at = kBelow.find(written); at != kBelow.npos)
        return {Line::Below, kPlain[at]};
    if (const std::size_t at = kAbove.find(written); at != kAbove.npos)
        return {Line::Above, kPlain[at]};
    return {Line::On, written};
}

std::u16string_view opening(Line line) {
    return line == Line::Below ? u"_{" : line == Line::Above ? u"^{" : u"\\text{";
}

/// The two sides, each species written by `write`.
template <class Write>
std::u16string sides(const Reaction& reaction, Write write) {
    std::u16string text;
    for (std::size_t i = 0; i < reaction.count; ++i) {
        const Species& one = reaction.all.at(i);
        text += i == 0 ? u"" : i == kReactants ? u" → " : u" + ";
        if (one.coefficient > 1)
            text += common::decimal(one.coefficient) + u'\u00A0';
        text += write(one);
    }
    return text;
}

} // namespace

const Reaction* reactionOf(std::u16string_view key) {
    return common::ofKey(kReactions, key);
}

std::u16string formulaOf(std::u16string_view species) {
    std::u16string formula;
    std::optional<Line> now;
    for (const char16_t written : species) {
        const Sign sign = signOf(written);
        if (now != sign.line)
            formula.append(now ? u"}" : u"").append(opening(sign.line));
        now = sign.line;
        formula += sign.plain;
    }
    return formula + u'}';
}

std::u16string equation(const Reaction& reaction) {
    return sides(reaction,
                 [](const Species& one) { return std::u16string(one.formula) + one.state; });
}

std::u16string equationFormula(const Reaction& reaction) {
    return sides(reaction, [](const Species& one) {
        return formulaOf(one.formula) + common::filled(u"\\text{%1}", {one.state});
    });
}

} // namespace reaction
