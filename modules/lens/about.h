#pragma once

#include "common/about.h"

namespace lens {

inline constexpr common::About kAbout = {.module = 2, .title = u"Banc d’optique"};

} // namespace lens
