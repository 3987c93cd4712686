#include "authoring/formula_signs.h"

#include <QHash>

#include <iterator>

namespace authoring {

namespace {

using Role = FormulaNode::Role;

struct Command {
    const char* name;
    const char* text;
    Role role = Role::Ordinary;
    bool italic = false;
};

constexpr Command kCommands[] = {
    {"alpha", "α", Role::Ordinary, true},
    {"beta", "β", Role::Ordinary, true},
    {"gamma", "γ", Role::Ordinary, true},
    {"delta", "δ", Role::Ordinary, true},
    {"epsilon", "ε", Role::Ordinary, true},
    {"varepsilon", "ε", Role::Ordinary, true},
    {"zeta", "ζ", Role::Ordinary, true},
    {"eta", "η", Role::Ordinary, true},
    {"theta", "θ", Role::Ordinary, true},
    {"iota", "ι", Role::Ordinary, true},
    {"kappa", "κ", Role::Ordinary, true},
    {"lambda", "λ", Role::Ordinary, true},
    {"mu", "μ", Role::Ordinary, true},
    {"nu", "ν", Role::Ordinary, true},
    {"xi", "ξ", Role::Ordinary, true},
    {"pi", "π"},
    {"rho", "ρ", Role::Ordinary, true},
    {"sigma", "σ", Role::Ordinary, true},
    {"tau", "τ", Role::Ordinary, true},
    {"upsilon", "υ", Role::Ordinary, true},
    {"phi", "φ", Role::Ordinary, true},
    {"varphi", "φ", Role::Ordinary, true},
    {"chi", "χ", Role::Ordinary, true},
    {"psi", "ψ", Role::Ordinary, true},
    {"omega", "ω", Role::Ordinary, true},
    {"Gamma", "Γ"},
    {"Delta", "Δ"},
    {"Theta", "Θ"},
    {"Lambda", "Λ"},
    {"Xi", "Ξ"},
    {"Pi", "Π"},
    {"Sigma", "Σ"},
    {"Phi", "Φ"},
    {"Psi", "Ψ"},
    {"Omega", "Ω"},
    {"times", "×", Role::Binary},
    {"cdot", "·", Role::Binary},
    {"div", "÷", Role::Binary},
    {"pm", "±", Role::Binary},
    {"le", "≤", Role::Relation},
    {"leq", "≤", Role::Relation},
    {"ge", "≥", Role::Relation},
    {"geq", "≥", Role::Relation},
    {"neq", "≠", Role::Relation},
    {"ne", "≠", Role::Relation},
    {"approx", "≈", Role::Relation},
    {"simeq", "≈", Role::Relation},
    {"ll", "≪", Role::Relation},
    {"gg", "≫", Role::Relation},
    {"equiv", "≡", Role::Relation},
    {"sim", "∼", Role::Relation},
    {"to", "→", Role::Relation},
    {"rightarrow", "→", Role::Relation},
    {"Rightarrow", "⇒", Role::Relation},
    {"Leftrightarrow", "⇔", Role::Relation},
    {"propto", "∝", Role::Relation},
    {"parallel", "∥", Role::Relation},
    {"perp", "⊥", Role::Relation},
    {"in", "∈", Role::Relation},
    {"infty", "∞"},
    {"degree", "°"},
    {"circ", "°"},
    {"prime", "′"},
    {"ell", "ℓ"},
    {"ldots", "…"},
    {"dots", "…"},
    {"ohm", "Ω"},
    {"lbrace", "{", Role::Opening},
    {"rbrace", "}", Role::Closing},
    {"{", "{", Role::Opening},
    {"}", "}", Role::Closing},
    {"|", "‖"},
    {"%", "%"},
    {"#", "#"},
    {"_", "_"},
    {"&", "&"},
    {"$", "$"},
    {",", "\u00A0"},
    {";", "\u00A0"},
    {":", "\u00A0"},
    {" ", "\u00A0"},
    {"quad", "\u00A0\u00A0\u00A0\u00A0"},
    {"qquad", "\u00A0\u00A0\u00A0\u00A0\u00A0\u00A0\u00A0\u00A0"},
    {"sin", "sin", Role::Function},
    {"cos", "cos", Role::Function},
    {"tan", "tan", Role::Function},
    {"arcsin", "arcsin", Role::Function},
    {"arccos", "arccos", Role::Function},
    {"arctan", "arctan", Role::Function},
    {"log", "log", Role::Function},
    {"ln", "ln", Role::Function},
    {"exp", "exp", Role::Function},
    {"max", "max", Role::Function},
    {"min", "min", Role::Function},
};

FormulaNode sign(const QString& text, Role role, bool italic) {
    FormulaNode node;
    node.kind = FormulaNode::Kind::Sign;
    node.text = text;
    node.role = role;
    node.italic = italic;
    return node;
}

Role roleOf(char32_t c) {
    switch (c) {
    case U'=':
    case U'<':
    case U'>':
    case U'≤':
    case U'≥':
    case U'≈':
    case U'≠':
    case U'→':
    case U':':
        return Role::Relation;
    case U'+':
    case U'−':
    case U'×':
    case U'·':
    case U'÷':
    case U'±':
        return Role::Binary;
    case U'(':
    case U'[':
        return Role::Opening;
    case U')':
    case U']':
        return Role::Closing;
    case U'/':
        return Role::Slash;
    case U',':
    case U';':
        return Role::Separator;
    default:
        return Role::Ordinary;
    }
}

/// Capitals of other alphabets stand upright: Δ is no quantity by itself.
bool leans(char32_t c) {
    const bool latin = c <= U'\u024F' && c != U'µ' && QChar::isLetter(c);
    const bool greek = c >= U'α' && c <= U'ω' && c != U'π';
    return latin || greek;
}

} // namespace

std::optional<FormulaNode> signOfCommand(const QString& name) {
    static const QHash<QString, const Command*> kByName = [] {
        QHash<QString, const Command*> byName;
        for (const Command& command : kCommands)
            byName.insert(QString::fromUtf8(command.name), &command);
        return byName;
    }();
    const auto found = kByName.find(name);
    if (found == kByName.end())
        return std::nullopt;
    return sign(QString::fromUtf8((*found)->text), (*found)->role, (*found)->italic);
}

FormulaNode signOfCharacter(char32_t character, bool upright) {
    const char32_t shown = character == U'-'    ? U'−'
                           : character == U'*'  ? U'×'
                           : character == U'\'' ? U'′'
                           : character == U'~'  ? U'\u00A0'
                                                : character;
    return sign(QString::fromUcs4(&shown, 1), roleOf(shown), !upright && leans(shown));
}

} // namespace authoring
