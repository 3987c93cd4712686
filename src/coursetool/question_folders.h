#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace coursetool {

/// Shares questions out to the folders of the tests so that the folders, one after the other, give
/// back the order of the records: the result never decreases. `own` has the folder of each
/// question's test, where there is one. As many questions as possible come into their own folder;
/// the others go where their neighbours are (which test a question belongs to is told by its
/// REFERENCE, not by its folder).
std::vector<std::size_t> shareOut(std::span<const std::optional<std::size_t>> own);

} // namespace coursetool
