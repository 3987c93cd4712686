#include "reaction/mixture.h"

#include <algorithm>
#include <cmath>

namespace reaction {

namespace {

/// Amounts that differ by less, mol, differ by the rounding of a quotient only.
constexpr double kRounding = 1e-9;

} // namespace

double Mixture::quotient(std::size_t reactant) const {
    return initial.at(reactant) / reaction->reactant(reactant).coefficient;
}

double Mixture::maximum() const {
    return std::min(quotient(0), quotient(1));
}

Limiting Mixture::limiting() const {
    if (maximum() <= 0)
        return Limiting::Nothing;
    const double difference = quotient(0) - quotient(1);
    if (std::fabs(difference) < kRounding)
        return Limiting::Both;
    return difference < 0 ? Limiting::First : Limiting::Second;
}

double Mixture::amount(std::size_t species, double x) const {
    const double change = x * reaction->all.at(species).coefficient;
    return species < kReactants ? std::max(0.0, initial.at(species) - change) : change;
}

} // namespace reaction
