#include "projectile/launch_text.h"

#include "common/french_number.h"
#include "common/words.h"

namespace projectile {

namespace {

/// "v_0 = 20 m/s": the name is a formula, the unit upright.
std::u16string formulaOf(const Distinction& one) {
    if (one.symbol == nullptr)
        return common::filled(u"\\text{%1}", {one.words});
    return common::filled(
        u"%1\u00A0=\u00A0%2\\text{%3}",
        {one.symbol, common::frenchDigits(one.value, 3), common::unitBehind(one.unit)});
}

} // namespace

std::u16string describe(const Launch& launch) {
    std::vector<std::u16string> parts;
    for (const Distinction& one : distinctions(launch))
        parts.push_back(formulaOf(one));
    return common::joined(parts, u", ");
}

} // namespace projectile
