#include "lens/controls.h"

namespace lens {

namespace {

using common::Control;

Control numberOf(Bench& bench, Parameter parameter) {
    return common::quantityControl(bench, bench.arrangement(), quantity(parameter));
}

Control kindOf(Bench& bench) {
    return common::choiceControl(
        Control::Kind::Segments, u"Lentille", {{u"convergente"}, {u"divergente"}},
        static_cast<int>(bench.arrangement().kind), !bench.isLocked(Parameter::FocalLength),
        [&bench](std::size_t which) { bench.setKind(static_cast<Kind>(which)); });
}

Control focalLengthOf(Bench& bench) {
    Control control = numberOf(bench, Parameter::FocalLength);
    if (bench.arrangement().kind == Kind::Diverging)
        control.formula = u"\\text{Distance focale }−f\u200A′";
    return control;
}

Control measureOf(Bench& bench) {
    return common::buttonControl(u"Noter la mesure",
                                 bench.isSharp() ? u"ajoute une ligne à l’onglet Mesures"
                                                 : u"quand l’image est nette sur l’écran",
                                 bench.canMeasure(), [&bench] { bench.measure(); });
}

} // namespace

common::Controls controlsOf(Bench& bench) {
    const bool isKnown = !bench.hidesLens();
    return {
        common::headingControl(u"Objet"),
        numberOf(bench, Parameter::Distance),
        numberOf(bench, Parameter::Height),
        common::headingControl(u"Lentille"),
        common::shownIf(isKnown, kindOf(bench)),
        common::shownIf(isKnown, focalLengthOf(bench)),
        common::shownIf(!isKnown,
                        common::noteControl(u"Lentille inconnue\u00A0: à vous de la mesurer.")),
        common::headingControl(u"Écran"),
        numberOf(bench, Parameter::Screen),
        common::buttonControl(u"Mettre au point", u"met l’écran là où l’image est nette",
                              bench.canFocus(), [&bench] { bench.focus(); }),
        common::atFoot(measureOf(bench)),
        common::atFoot(common::buttonControl(u"Effacer", u"efface les mesures notées",
                                             !bench.measures().empty(),
                                             [&bench] { bench.forgetMeasures(); })),
    };
}

} // namespace lens
