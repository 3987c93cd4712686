#pragma once

#include "common/about.h"

namespace projectile {

/// What the drawing shows besides the paths.
struct Shown {
    bool speed = true;
    bool components = false;
    bool acceleration = false;
    bool points = true;
};

inline constexpr common::Choice<Shown> kChoices[] = {{u"vitesse", &Shown::speed},
                                                     {u"ses composantes", &Shown::components},
                                                     {u"accélération", &Shown::acceleration},
                                                     {u"points", &Shown::points}};
inline constexpr auto kBoxes = common::boxesOf(kChoices);

inline constexpr const char16_t* kViews[] = {u"Trajectoire", u"Énergies", u"Tableau", u"Formules"};

inline constexpr common::Transport kTransport = {
    .slider = u"Temps",
    .nothing = u"Lancé ainsi, le projectile reste au sol.",
    .step = 0.02,
    .hasRates = true,
};

inline constexpr common::About kAbout = {.module = 23,
                                         .title = u"Mouvement d’un projectile",
                                         .views = kViews,
                                         .boxes = kBoxes,
                                         .transport = &kTransport};

} // namespace projectile
