#pragma once

#include "common/about.h"

namespace reaction {

inline constexpr const char16_t* kViews[] = {u"Quantités", u"Tableau", u"Calcul"};

inline constexpr common::Transport kTransport = {
    .slider = u"Avancement",
    .nothing = u"Sans l’un des réactifs, rien ne réagit.",
    .step = 0.1,
    .hasRates = false,
};

inline constexpr common::About kAbout = {
    .module = 10, .title = u"Réactif limitant", .views = kViews, .transport = &kTransport};

} // namespace reaction
