#pragma once

#include "common/reading.h"
#include "common/table.h"
#include "lens/bench.h"

#include <vector>

namespace lens {

/// Object, lens, image, what that is like, and the relation between them.
std::vector<common::ReadingGroup> readingsOf(const Bench& bench);

/// "image à +60,0 cm, réelle, renversée, agrandie, grandissement −2,00": for who does not see it.
std::u16string imageInWords(const Bench& bench);

/// The measures that were taken, with what a pupil calculates from them.
common::Table measuresOf(const Bench& bench);

/// What to do while there are none.
inline constexpr const char16_t* kNoMeasures =
    u"Déplacez l’écran jusqu’à ce que l’image soit nette, puis «\u00A0Noter la mesure\u00A0». "
    u"L’écart des deux inverses est-il toujours le même\u00A0?";

} // namespace lens
