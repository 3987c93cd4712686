#pragma once

#include "coursedata/recordset.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace coursedata {

/// Highest page number or reading-order index that the tables take in. A database may hold any
/// 32-bit number there; this keeps the two tables at 2 MB each.
inline constexpr int kMaxIndexedNumber = 1'000'000;

/// Where the pages of a course are: record positions (from 0) by fixed page number and by
/// reading-order index. Of the table by number the last slot is the upper bound itself, which no
/// page number reaches. Holes hold 0.
struct PageIndex {
    std::optional<std::vector<std::int16_t>> PageByNumber; ///< absent until the index is built
    std::optional<std::vector<std::int16_t>> PageByOrder;  ///< likewise
};

/// Fills `PageByNumber` and `PageByOrder` from all records: the entry of a record's number is its
/// position. `PageByOrder` ends with the highest index, `PageByNumber` one slot after the highest
/// number, and holes hold 0. Of records with the same number the last one counts. Negative numbers,
/// numbers beyond kMaxIndexedNumber and NULL are not entered; a position beyond 32767 does not fit
/// its 16-bit entry, which keeps its value. `letMessagesRun` is called now and then, so that a
/// window stays alive over a large table.
void buildPageIndex(const Recordset& cours, PageIndex& index,
                    const std::function<void()>& letMessagesRun = {});

// Where a table leads: 0 for a number within its bounds that no page has, which is meant so;
// nothing for a number outside, or while there is no table.

/// The page of a code or a link. The upper bound itself counts as outside, meant so.
std::optional<std::int16_t> positionOfCode(const PageIndex& index, std::int32_t number);

/// A page to print. The upper bound counts, and has no page.
std::optional<std::int16_t> positionInPrint(const PageIndex& index, std::int32_t number);

/// The page with this reading-order index.
std::optional<std::int16_t> positionByOrder(const PageIndex& index, std::int32_t order);

} // namespace coursedata
