#include "projectile/listing.h"

#include "common/french_number.h"
#include "common/words.h"

#include <utility>

namespace projectile {

namespace {

common::Reading reading(const char16_t* name, const char16_t* spoken, double value,
                        const char16_t* unit, bool hidden = false) {
    const std::u16string number = hidden ? u"?" : common::frenchNumber(value, 2);
    return {name, number + u'\u00A0' + unit, spoken};
}

} // namespace

common::ReadingGroup readingsNow(const Experiment& experiment) {
    const Moment now = experiment.now();
    return {u"À l’instant",
            {reading(u"x", u"x", now.x, u"m"), reading(u"y", u"y", now.y, u"m"),
             reading(u"v_x", u"v indice x", now.vx, u"m/s"),
             reading(u"v_y", u"v indice y", now.vy, u"m/s"),
             reading(u"v", u"v", now.speed(), u"m/s")},
            5};
}

common::Reading momentOf(const Experiment& experiment) {
    return reading(u"t", u"", experiment.playback().time(), u"s");
}

common::ReadingGroup readingsOfFlight(const Experiment& experiment) {
    const Flight& flight = experiment.flight();
    const bool hidden = experiment.hidesResults();
    return {u"Vol entier",
            {reading(u"\\text{portée}", u"portée", flight.range(), u"m", hidden),
             reading(u"\\text{sommet}", u"sommet", flight.apex().y, u"m", hidden),
             reading(u"\\text{durée}", u"durée", flight.duration(), u"s", hidden),
             reading(u"\\text{arrivée}", u"arrivée", flight.landing().speed(), u"m/s", hidden)},
            4};
}

common::Table valuesOf(const Flight& flight) {
    common::Table table;
    for (const auto& [symbol, unit] :
         {std::pair(u"t", u"s"), std::pair(u"x", u"m"), std::pair(u"y", u"m"),
          std::pair(u"v_x", u"m/s"), std::pair(u"v_y", u"m/s"), std::pair(u"v", u"m/s"),
          std::pair(u"E_c", u"J"), std::pair(u"E_p", u"J"), std::pair(u"E_m", u"J")})
        table.columns.push_back({common::filled(u"%1 (%2)", {symbol, unit}),
                                 common::filled(u"%1\\text{ (%2)}", {symbol, unit})});
    const auto energy = [decimals = flight.energyDecimals()](double value) {
        return common::frenchNumber(value, decimals);
    };
    for (const Moment& one : strobeMoments(flight)) {
        std::vector<std::u16string>& row = table.rows.emplace_back();
        for (const double value : {one.t, one.x, one.y, one.vx, one.vy, one.speed()})
            row.push_back(common::frenchNumber(value, 2));
        const Energies energies = flight.energies(one);
        for (const double value : {energies.kinetic, energies.potential, energies.mechanical()})
            row.push_back(energy(value));
    }
    return table;
}

} // namespace projectile
