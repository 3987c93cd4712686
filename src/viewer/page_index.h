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
/// position. `PageByOrder` ends with the highest index, `PageByNumber` one slot after the highest
/// number, and holes hold 0. Of records with the same number the last one counts. Negative numbers,
/// numbers beyond kMaxIndexedNumber and NULL are not entered; a position beyond 32767 does not fit
/// its 16-bit entry, which keeps its value. `letMessagesRun` is called now and then, so that a
/// window stays alive over a large table.
void buildPageIndex(const platform::Recordset& cours, shell::SharedState& state,
                    const std::function<void()>& letMessagesRun = {});

// Where a table leads: 0 for a number within its bounds that no page has, which is meant so;
// nothing for a number outside, or while there is no table.

/// The page of a code or a link. The upper bound itself counts as outside, meant so.
std::optional<std::int16_t> positionOfCode(const shell::SharedState& state, std::int32_t number);

/// A page to print. The upper bound counts, and has no page.
std::optional<std::int16_t> positionInPrint(const shell::SharedState& state, std::int32_t number);

/// The page with this reading-order index.
std::optional<std::int16_t> positionByOrder(const shell::SharedState& state, std::int32_t index);

} // namespace viewer
