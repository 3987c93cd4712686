#include "reaction/laws.h"

#include "common/french_number.h"
#include "common/words.h"

namespace reaction {

namespace {

using common::decimal;
using common::filled;
using common::frenchNumber;

std::u16string mol(double amount) {
    return frenchNumber(amount, 2) + u"\\text{\u00A0mol}";
}

std::u16string amountOf(const Species& species) {
    return filled(u"n\\text{(}%1\\text{)}", {formulaOf(species.formula)});
}

/// "n(O₂)/2 = 3,00 mol/2 = 1,50 mol", a formula.
std::u16string quotient(const Mixture& mixture, std::size_t reactant) {
    const Species& species = mixture.reaction->reactant(reactant);
    return filled(u"\\frac{%1}{%2} = \\frac{%3}{%2} = %4",
                  {amountOf(species), decimal(species.coefficient),
                   mol(mixture.initial.at(reactant)), mol(mixture.quotient(reactant))});
}

std::u16string atTheEnd(const Mixture& mixture, std::size_t species) {
    const Species& which = mixture.reaction->all.at(species);
    const double most = mixture.maximum();
    const std::u16string start =
        species < kReactants ? frenchNumber(mixture.initial.at(species), 2) + u" − " : u"";
    return filled(u"%1 = %2%3 × %4 = %5",
                  {amountOf(which), start, decimal(which.coefficient), frenchNumber(most, 2),
                   mol(mixture.amount(species, most))});
}

} // namespace

std::vector<common::Law> lawsOf(const Experiment& experiment) {
    const Mixture& mixture = experiment.mixture();
    std::vector<common::Law> laws = {
        {u"Équation"},
        {u"Réaction", equationFormula(*mixture.reaction)},
        {u"Quel réactif s’épuise le premier\u00A0?"},
    };
    if (experiment.hidesResults()) {
        laws.push_back({u"Le plus petit des", u"\\frac{n}{\\text{nombre stœchiométrique}}"});
        return laws;
    }
    for (std::size_t i = 0; i < kReactants; ++i)
        laws.push_back({mixture.reaction->reactant(i).name, quotient(mixture, i)});
    laws.push_back({u"Le plus petit", filled(u"x_{\\text{max}} = %1", {mol(mixture.maximum())})});
    laws.push_back({u"À l’état final"});
    for (std::size_t i = 0; i < mixture.reaction->count; ++i)
        laws.push_back({mixture.reaction->all.at(i).name, atTheEnd(mixture, i)});
    return laws;
}

} // namespace reaction
