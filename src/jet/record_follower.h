#pragma once

#include "jet/page_source.h"

#include <cstdint>
#include <functional>

namespace jet {

/// Follows long values to their records.
class RecordFollower {
public:
    /// Many cells of a damaged file can share one long chain: no more records than this many times
    /// the pages of the file are looked at.
    static constexpr std::uint64_t kBudget = 64;

    explicit RecordFollower(PageSource& source)
        : source_(&source), left_(kBudget * source.pageCount()) {}

    /// Calls back with the place of each record of the value whose cell this is, as far as they
    /// can be followed, and `named`, if given, with each page on the way, be there a record or
    /// not. False once there was too much to follow.
    bool follow(Bytes cell, const std::function<void(RowPointer)>& callback,
                const std::function<void(std::uint32_t)>& named = {});

private:
    PageSource* source_;
    std::uint64_t left_;
};

} // namespace jet
