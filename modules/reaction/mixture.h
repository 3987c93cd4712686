#pragma once

#include "common/number.h"
#include "reaction/equation.h"

namespace reaction {

/// The amount of a reactant at the start, mol.
inline constexpr common::Number kAmount = {u"Quantité", u"n", u"mol", 0, 6, 0.1, 2};

enum class Limiting {
    First,
    Second,
    Both,    ///< a stoichiometric mixture: nothing is left of either
    Nothing, ///< one of them is not there at all, so nothing happens
};

/// Two reactants before they react.
struct Mixture {
    const Reaction* reaction = &kReactions.front();
    std::array<double, kReactants> initial = {2, 3}; ///< mol, 0 and more

    /// How far a reactant alone would let the reaction go: its amount by its number, mol.
    double quotient(std::size_t reactant) const;

    /// Progress x at the end, mol: the smaller quotient.
    double maximum() const;
    Limiting limiting() const;

    /// Amount at progress `x` of the species at that place, mol; never below 0.
    double amount(std::size_t species, double x) const;

    bool operator==(const Mixture&) const = default;
};

} // namespace reaction
