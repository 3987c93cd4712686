#include "markup/qb_color.h"

namespace markup {

std::optional<Rgb> qbColor(int index) {
    static constexpr Rgb kPalette[] = {
        0xff000000, 0xff000080, 0xff008000, 0xff008080, 0xff800000, 0xff800080,
        0xff808000, 0xffc0c0c0, 0xff808080, 0xff0000ff, 0xff00ff00, 0xff00ffff,
        0xffff0000, 0xffff00ff, 0xffffff00, 0xffffffff,
    };
    if (index < 0 || index > 15)
        return std::nullopt;
    return kPalette[index];
}

} // namespace markup
