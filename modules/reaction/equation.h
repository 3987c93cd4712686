#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace reaction {

/// What takes part in a reaction. Texts for a pupil; indices, exponents and charges are letters of
/// their own ("Cu²⁺", "H₂O").
struct Species {
    const char16_t* name;    ///< "dioxygène"
    const char16_t* formula; ///< "O₂"
    const char16_t* state;   ///< "(g)"
    int coefficient;         ///< stoichiometric number, 1 and more
};

inline constexpr std::size_t kReactants = 2;

/// A reaction of two reactants that goes on until one of them is used up.
struct Reaction {
    const char16_t* name;
    const char16_t* key; ///< in files of exercises
    std::size_t count;   ///< of species
    std::array<Species, 4> all;

    /// The reactants first, then the products.
    std::span<const Species> species() const { return {all.data(), count}; }
    const Species& reactant(std::size_t which) const { return all.at(which); }
};

/// Reactions of the course that are total as far as one can weigh.
extern const std::array<Reaction, 6> kReactions;

/// The reaction of that key; null when there is none.
const Reaction* reactionOf(std::u16string_view key);

/// "Cu²⁺" as common::Formula sets it: letters upright, figures below and above the line.
std::u16string formulaOf(std::u16string_view species);

/// "CH₄(g) + 2 O₂(g) → CO₂(g) + 2 H₂O(g)", plain.
std::u16string equation(const Reaction& reaction);

/// The same as a formula.
std::u16string equationFormula(const Reaction& reaction);

} // namespace reaction
