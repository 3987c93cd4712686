#include "reaction/laws.h"

#include "common/french_number.h"

namespace reaction {

namespace {

QString mol(double amount) {
    return common::frenchNumber(amount, 2) + QStringLiteral("\\text{\u00A0mol}");
}

QString amountOf(const Species& species) {
    return QStringLiteral("n\\text{(}%1\\text{)}").arg(formulaOf(species.formula));
}

/// "n(O₂)/2 = 3,00 mol/2 = 1,50 mol", a formula.
QString quotient(const Mixture& mixture, std::size_t reactant) {
    const Species& species = mixture.reaction->reactant(reactant);
    return QStringLiteral("\\frac{%1}{%2} = \\frac{%3}{%2} = %4")
        .arg(amountOf(species), QString::number(species.coefficient),
             mol(mixture.initial.at(reactant)), mol(mixture.quotient(reactant)));
}

QString atTheEnd(const Mixture& mixture, std::size_t species) {
    const Species& which = mixture.reaction->all.at(species);
    const double most = mixture.maximum();
    const QString change = QStringLiteral("%1 × %2").arg(QString::number(which.coefficient),
                                                         common::frenchNumber(most, 2));
    const QString start =
        species < kReactants
            ? common::frenchNumber(mixture.initial.at(species), 2) + QStringLiteral(" − ")
            : QString();
    return QStringLiteral("%1 = %2%3 = %4")
        .arg(amountOf(which), start, change, mol(mixture.amount(species, most)));
}

} // namespace

std::vector<common::Law> lawsOf(const Experiment& experiment) {
    const Mixture& mixture = experiment.mixture();
    std::vector<common::Law> laws = {
        {QStringLiteral("Équation"), {}},
        {QStringLiteral("Réaction"), equationFormula(*mixture.reaction)},
        {QStringLiteral("Quel réactif s’épuise le premier\u00A0?"), {}},
    };
    if (experiment.hidesResults()) {
        laws.push_back({QStringLiteral("Le plus petit des"),
                        QStringLiteral("\\frac{n}{\\text{nombre stœchiométrique}}")});
        return laws;
    }
    for (std::size_t i = 0; i < kReactants; ++i)
        laws.push_back(
            {QString::fromUtf16(mixture.reaction->reactant(i).name), quotient(mixture, i)});
    laws.push_back({QStringLiteral("Le plus petit"),
                    QStringLiteral("x_{\\text{max}} = %1").arg(mol(mixture.maximum()))});
    laws.push_back({QStringLiteral("À l’état final"), {}});
    for (std::size_t i = 0; i < mixture.reaction->count; ++i)
        laws.push_back(
            {QString::fromUtf16(mixture.reaction->all.at(i).name), atTheEnd(mixture, i)});
    return laws;
}

} // namespace reaction
