#include "projectile/launch.h"

#include <QString>

#include <algorithm>

namespace projectile {

const Quantity& quantity(Parameter parameter) {
    return kQuantities.at(static_cast<std::size_t>(parameter));
}

std::optional<World> worldOf(const Launch& launch) {
    const auto* found = std::find_if(kWorlds.begin(), kWorlds.end(), [&](const World& world) {
        return world.gravity == launch.gravity && world.airDensity == launch.airDensity;
    });
    return found == kWorlds.end() ? std::nullopt : std::optional(*found);
}

std::optional<World> worldNamed(const QString& name) {
    const auto* found = std::find_if(kWorlds.begin(), kWorlds.end(), [&](const World& world) {
        return QString::fromUtf16(world.name).compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == kWorlds.end() ? std::nullopt : std::optional(*found);
}

} // namespace projectile
