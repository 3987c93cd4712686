#pragma once

#include <string>
#include <string_view>

namespace jet {

/// The name with letter case left aside: what sameName compares.
std::u16string foldedName(std::u16string_view name);
/// Whether two names are the same when letter case is left aside (text::lowerCase).
bool sameName(std::u16string_view a, std::u16string_view b);

} // namespace jet
