#include "projectile/launch.h"

#include <algorithm>
#include <cmath>

namespace projectile {

namespace {

/// Of a slider that gives each factor of ten the same room.
constexpr int kLogarithmicPositions = 200;

} // namespace

const Quantity& quantity(Parameter parameter) {
    return kQuantities.at(static_cast<std::size_t>(parameter));
}

std::optional<World> worldOf(const Launch& launch) {
    for (const World& world : kWorlds)
        if (world.gravity == launch.gravity && world.airDensity == launch.airDensity)
            return world;
    return std::nullopt;
}

int positionOf(const Quantity& quantity, double value) {
    if (!quantity.logarithmic)
        return static_cast<int>(std::lround((value - quantity.least) / quantity.step));
    const double share =
        std::log(value / quantity.least) / std::log(quantity.most / quantity.least);
    return static_cast<int>(std::lround(share * kLogarithmicPositions));
}

double valueAt(const Quantity& quantity, int position) {
    if (!quantity.logarithmic)
        return std::min(quantity.most, quantity.least + position * quantity.step);
    const double share = static_cast<double>(position) / kLogarithmicPositions;
    const double value = quantity.least * std::pow(quantity.most / quantity.least, share);
    // Two significant digits: 0,63 kg is a better mass than 0,6309 kg.
    const double power = std::pow(10, std::floor(std::log10(value)) - 1);
    return std::min(quantity.most, std::round(value / power) * power);
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
