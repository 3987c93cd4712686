#pragma once

#include "common/about.h"

namespace projectile {

inline constexpr common::Transport kTransport = {
    .slider = u"Temps",
    .nothing = u"Lancé ainsi, le projectile reste au sol.",
    .step = 0.02,
    .hasRates = true,
};

inline constexpr common::About kAbout = {
    .module = 23, .title = u"Mouvement d’un projectile", .transport = &kTransport};

} // namespace projectile
