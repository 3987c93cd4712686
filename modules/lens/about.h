#pragma once

#include "common/about.h"

namespace lens {

/// What the drawing shows besides object, lens and screen; nothing of it of a lens that is
/// withheld.
struct Shown {
    bool rays = true;
    bool extensions = true;
    bool image = true;
    bool beam = false;
};

inline constexpr common::Choice<Shown> kChoices[] = {{u"rayons", &Shown::rays},
                                                     {u"prolongements", &Shown::extensions},
                                                     {u"image", &Shown::image},
                                                     {u"faisceau", &Shown::beam}};
inline constexpr auto kBoxes = common::boxesOf(kChoices);

inline constexpr const char16_t* kViews[] = {u"Construction", u"Mesures", u"Formules"};

inline constexpr common::About kAbout = {
    .module = 2, .title = u"Banc d’optique", .views = kViews, .boxes = kBoxes};

} // namespace lens
