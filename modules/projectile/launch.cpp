#include "projectile/launch.h"

namespace projectile {

const Quantity& quantity(Parameter parameter) {
    return kQuantities.at(static_cast<std::size_t>(parameter));
}

std::optional<World> worldOf(const Launch& launch) {
    for (const World& world : kWorlds)
        if (world.gravity == launch.gravity && world.airDensity == launch.airDensity)
            return world;
    return std::nullopt;
}

std::vector<Distinction> distinctions(const Launch& launch) {
    const auto value = [&](Parameter parameter) {
        const Quantity& which = quantity(parameter);
        return Distinction{which.symbol, launch.*which.value, which.unit};
    };
    const auto words = [](const char16_t* text) { return Distinction{nullptr, 0, u"", text}; };
    std::vector<Distinction> all = {value(Parameter::Speed), value(Parameter::Angle)};
    if (launch.height > 0)
        all.push_back(value(Parameter::Height));
    const std::optional<World> world = worldOf(launch);
    if (!world)
        all.push_back(value(Parameter::Gravity));
    else if (world->gravity != kWorlds.front().gravity)
        all.push_back(words(world->name));
    // Somebody's own gravity keeps the air of the world before: drag may have nothing to act with.
    if (launch.drag != Drag::None && launch.airDensity == 0) {
        all.push_back(words(u"sans air"));
    } else if (launch.drag == Drag::Linear) {
        all.push_back(value(Parameter::LinearCoefficient));
    } else if (launch.drag == Drag::Quadratic) {
        all.push_back(value(Parameter::Mass));
        all.push_back(value(Parameter::Diameter));
    }
    return all;
}

} // namespace projectile
