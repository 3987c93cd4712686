#include "jet/names.h"

#include "text/letters.h"

#include <algorithm>

namespace jet {

std::u16string foldedName(std::u16string_view name) {
    std::u16string out(name);
    std::transform(out.begin(), out.end(), out.begin(), text::lowerCase);
    return out;
}

bool sameName(std::u16string_view a, std::u16string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char16_t x, char16_t y) {
        return text::lowerCase(x) == text::lowerCase(y);
    });
}

} // namespace jet
