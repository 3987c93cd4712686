#include "projectile/controls.h"

namespace projectile {

namespace {

using common::Control;

Control worldsOf(Experiment& experiment) {
    std::vector<common::Option> options;
    int taken = -1;
    const std::optional<World> now = worldOf(experiment.launch());
    for (const World& world : kWorlds) {
        if (now && now->gravity == world.gravity)
            taken = static_cast<int>(options.size());
        options.push_back({world.name});
    }
    return common::choiceControl(
        Control::Kind::Segments, u"Astre", std::move(options), taken,
        !experiment.isLocked(Parameter::Gravity),
        [&experiment](std::size_t which) { experiment.setWorld(kWorlds.at(which)); });
}

Control dragsOf(Experiment& experiment) {
    return common::choiceControl(
        Control::Kind::Segments, u"Frottements de l’air",
        {{u"aucun", {}, u"pas de frottement"},
         {u"f = k v", u"f = k v",
          u"proportionnels à la vitesse\u00A0: corps très petits ou très lents"},
         {u"f ∝ v²", u"f ∝ v^2",
          u"proportionnels au carré de la vitesse\u00A0: balles, ballons, pierres"}},
        static_cast<int>(experiment.launch().drag), !experiment.isDragLocked(),
        [&experiment](std::size_t which) { experiment.setDrag(static_cast<Drag>(which)); });
}

} // namespace

common::Controls controlsOf(Experiment& experiment) {
    const auto number = [&](Parameter parameter) {
        return common::quantityControl(experiment, experiment.launch(), quantity(parameter));
    };
    const auto with = [&](Drag drag, Control control) {
        return common::shownIf(experiment.launch().drag == drag, std::move(control));
    };
    return {
        common::headingControl(u"Lancement"),
        number(Parameter::Speed),
        number(Parameter::Angle),
        number(Parameter::Height),
        common::headingControl(u"Astre"),
        worldsOf(experiment),
        number(Parameter::Gravity),
        common::headingControl(u"Projectile"),
        number(Parameter::Mass),
        common::headingControl(u"Frottements de l’air"),
        dragsOf(experiment),
        with(Drag::None, common::noteControl(u"Seul le poids agit\u00A0: chute libre.")),
        common::inPlaceOfLast(with(Drag::Linear, number(Parameter::LinearCoefficient))),
        common::inPlaceOfLast(with(Drag::Quadratic, number(Parameter::Diameter))),
        common::atFoot(common::buttonControl(
            u"Garder la trajectoire", u"la laisse dessinée, pour la comparer aux suivantes",
            experiment.canKeep(), [&experiment] { experiment.keep(); })),
        common::atFoot(common::buttonControl(u"Effacer", u"efface les trajectoires gardées",
                                             !experiment.kept().empty(),
                                             [&experiment] { experiment.forgetKept(); })),
    };
}

} // namespace projectile
