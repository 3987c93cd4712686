#pragma once

#include "jet/page_changes.h"
#include "jet/page_taker.h"
#include "jet/result.h"

#include <cstdint>
#include <vector>

namespace jet {

/// Puts a value that is not empty on new pages that hold nothing else, and gives its cell. The
/// pages' numbers are added to `pages`.
Result<std::vector<std::uint8_t>> storeOnNewPages(Bytes value, PageChanges& changes,
                                                  PageTaker& taker, int rank,
                                                  std::vector<std::uint32_t>& pages);

} // namespace jet
