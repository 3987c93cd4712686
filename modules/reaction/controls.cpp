#include "reaction/controls.h"

#include "common/words.h"

namespace reaction {

namespace {

using common::Control;

Control reactionsOf(Experiment& experiment) {
    std::vector<common::Option> options;
    for (const Reaction& one : kReactions)
        options.push_back({one.name});
    return common::choiceControl(
        Control::Kind::List, u"Réaction", std::move(options),
        static_cast<int>(&experiment.reaction() - kReactions.data()), !experiment.hasExercise(),
        [&experiment](std::size_t which) { experiment.setReaction(kReactions.at(which)); });
}

Control amountOf(Experiment& experiment, std::size_t reactant) {
    const Species& species = experiment.reaction().reactant(reactant);
    Control control = common::numberControl(
        kAmount, experiment.mixture().initial.at(reactant), !experiment.isLocked(reactant),
        [&experiment, reactant](double amount) { experiment.setInitial(reactant, amount); });
    control.name = std::u16string(u"Quantité initiale, ") + species.name;
    control.formula = common::filled(u"\\text{%1 }%2", {species.name, formulaOf(species.formula)});
    return control;
}

} // namespace

common::Controls controlsOf(Experiment& experiment) {
    return {
        common::headingControl(u"Réaction"),
        reactionsOf(experiment),
        common::headingControl(u"Quantités initiales"),
        amountOf(experiment, 0),
        amountOf(experiment, 1),
        common::buttonControl(u"Mélange stœchiométrique",
                              u"change la quantité d’un réactif pour que rien ne reste",
                              experiment.canBalance(), [&experiment] { experiment.balance(); }),
        common::atFoot(common::noteControl(u"La réaction est supposée totale\u00A0: elle s’arrête "
                                           u"quand un réactif est épuisé.")),
    };
}

} // namespace reaction
