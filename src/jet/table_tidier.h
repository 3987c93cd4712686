#pragma once

#include "jet/named_pages.h"
#include "jet/page_changes.h"
#include "jet/page_taker.h"
#include "jet/row_change.h"
#include "jet/table_definition.h"
#include "jet/table_tail.h"
#include "jet/usage_map_editor.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <span>

namespace jet {

/// Plans, after a change of a row, what gives back the room of its old form, and of the old forms
/// that changes cut short have left: pages with nothing but a long value that no row names any more
/// are emptied and become free, and bodies of moved rows that no pointer leads to count as deleted.
/// Each write of it may be the last. A table of which some rows cannot be read is left as it is:
/// they may name anything.
class TableTidier {
public:
    TableTidier(PageChanges& changes, const TableDefinition& definition, const TableTail& tail)
        : changes_(&changes), taker_(changes), definition_(&definition), tail_(&tail) {}

    void plan(std::span<const RowChange::LeftValue> left);
    /// The same without a change before, and for a sound file only.
    void planLost();

private:
    void planCandidates(const NamedPages& named);
    void listLeft(std::span<const RowChange::LeftValue> left);
    void listOwned();
    void addCandidate(std::uint32_t page, std::size_t columnNumber);
    bool lookThroughRows();
    void deleteLostBodies();
    void freePages();

    PageChanges* changes_;
    PageTaker taker_;
    const TableDefinition* definition_;
    const TableTail* tail_;
    std::map<std::uint32_t, std::size_t> candidates_; ///< page to free, number of its column
    std::set<std::uint32_t> bodies_;                  ///< that have a pointer, as stored in one
};

} // namespace jet
