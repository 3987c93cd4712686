#pragma once

#include "platform/recordset.h"
#include "shell/shared_state.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace viewer {

/// Highest page number or reading-order index that the tables take in. A database may hold any
/// 32-bit number there; this keeps the two tables at 2 MB each.
inline constexpr int kMaxIndexedNumber = 1'000'000;

/// Fills `PageByNumber` and `PageByOrder` from all records: the entry of a record's number is its
/// position. Each table ends one slot after the highest number, and holes hold 0. Of records with
/// the same number the last one counts. Negative numbers, numbers beyond kMaxIndexedNumber and NULL
/// are not entered; a position beyond 32767 does not fit its 16-bit entry, which keeps its value.
/// `letMessagesRun` is called now and then, so that a window stays alive over a large table.
void buildPageIndex(const platform::Recordset& cours, shell::SharedState& state,
                    const std::function<void()>& letMessagesRun = {});

/// Position of the page with this fixed number, 0 for a number that no page has; nothing for a
/// number outside the table, or while there is no table.
std::optional<std::int16_t> positionByNumber(const shell::SharedState& state, std::int32_t number);

} // namespace viewer
