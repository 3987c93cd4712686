#pragma once

#include "jet/changed_cell.h"
#include "jet/data_page.h"
#include "jet/page_changes.h"
#include "jet/page_taker.h"
#include "jet/result.h"
#include "jet/row_parts.h"
#include "jet/table_definition.h"
#include "jet/table_tail.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace jet {

/// Plans the change of one row: the pages as they are to become are left in the PageChanges, in an
/// order of which each part leaves the old row or the new one. First come new pages, which nobody
/// names, then the maps that tell whose they are, last the one page that makes the row another:
/// the row's own, or when the row outgrows it, the page of the pointer to where it moved.
class RowChange {
public:
    /// A long value that the row had and has no more.
    struct LeftValue {
        std::size_t columnNumber;
        std::vector<std::uint8_t> cell;
    };

    RowChange(PageChanges& changes, const TableDefinition& definition, const TableTail& tail)
        : changes_(&changes), taker_(changes), definition_(&definition), tail_(&tail) {}

    /// `place` is the slot that counts as the row's place. The failure's sentence does not name
    /// the table.
    Result<void> plan(RowPointer place, std::vector<ChangedCell> cells);

    const std::vector<LeftValue>& leftValues() const { return left_; }

private:
    using RowBytes = std::vector<std::uint8_t>;

    struct Form {
        std::size_t longestInline; ///< longer Memo and OLE values lie outside the row
        bool staysOnPage;
    };

    std::optional<PointedRow> locate(RowPointer place);
    std::optional<Form> chooseForm(const PointedRow& site);
    bool fits(const PointedRow& site, Bytes row);
    RowBytes storedForm(std::size_t cell, std::size_t longestInline) const;
    RowBytes assemble(std::size_t longestInline) const;
    Result<void> store(std::size_t longestInline);
    Result<void> replace(const PointedRow& site, Bytes row);
    Result<void> moveOut(const PointedRow& site, Bytes row);
    Result<void> addToMap(RowPointer map, std::span<const std::uint32_t> pages);
    Result<void> markTaken();
    void noteLeftValues(const Row& row);
    bool isAsAsked(const Row& before, Bytes after, std::size_t longestInline) const;

    PageChanges* changes_;
    PageTaker taker_;
    const TableDefinition* definition_;
    const TableTail* tail_;
    std::vector<ChangedCell> cells_;
    std::vector<RowBytes> outside_; ///< cells of values that do not stay in the row, as in cells_
    std::optional<RowParts> parts_;
    std::vector<LeftValue> left_;
};

} // namespace jet
