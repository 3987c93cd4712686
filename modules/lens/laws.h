#pragma once

#include "common/law.h"
#include "lens/bench.h"

#include <string>
#include <vector>

namespace lens {

/// The relations that hold for the bench, with its numbers as far as they are not withheld.
std::vector<common::Law> lawsOf(const Bench& bench);

/// "1/OA′ − 1/OA = 1,67 + 3,33 = 5,00 m⁻¹", a formula.
std::u16string conjugation(const Arrangement& arrangement);

// Lengths with a sign, as formulas.
inline constexpr const char16_t* kObjectPlace = u"\\overline{\\text{OA}}";
inline constexpr const char16_t* kImagePlace = u"\\overline{\\text{OA′}}";
inline constexpr const char16_t* kObjectHeight = u"\\overline{\\text{AB}}";
inline constexpr const char16_t* kImageHeight = u"\\overline{\\text{A′B′}}";

/// "+60,0 cm"; a length with its sign.
std::u16string signedLength(double centimetres);

} // namespace lens
