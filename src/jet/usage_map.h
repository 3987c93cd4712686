#pragma once

#include "jet/page_source.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace jet {

/// The pages a usage map marks, in increasing order; those outside the file are dropped. Nothing
/// when the map cannot be read: its row, its kind or one of its bitmap pages is not what it should
/// be. `owner` is that of the page the map lies on.
std::optional<std::vector<std::uint32_t>> pagesInMap(PageSource& source, RowPointer map,
                                                     std::uint32_t owner = kMapOwner);

} // namespace jet
