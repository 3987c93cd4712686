#pragma once

#include "jet/page_changes.h"
#include "jet/page_taker.h"
#include "jet/result.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace jet {

/// Puts a value that is not empty on new pages that hold nothing else, and gives its cell. The
/// pages' numbers are added to `pages`.
Result<std::vector<std::uint8_t>> storeOnNewPages(Bytes value, PageChanges& changes,
                                                  PageTaker& taker, int rank,
                                                  std::vector<std::uint32_t>& pages);

/// Follows long values to their records.
class RecordFollower {
public:
    /// Many cells of a damaged file can share one long chain: no more records than this many times
    /// the pages of the file are looked at.
    static constexpr std::uint64_t kBudget = 64;

    explicit RecordFollower(PageSource& source)
        : source_(&source), left_(kBudget * source.pageCount()) {}

    /// Calls back with the place of each record of the value whose cell this is, as far as they
    /// can be followed. False once there was too much to follow.
    bool follow(Bytes cell, const std::function<void(RowPointer)>& callback);

private:
    PageSource* source_;
    std::uint64_t left_;
};

} // namespace jet
