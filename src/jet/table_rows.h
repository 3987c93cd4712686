#pragma once

#include "jet/data_page.h"
#include "jet/problems.h"
#include "jet/row.h"
#include "jet/table_definition.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace jet {

/// A row while it is being looked at; its bytes are gone afterwards.
struct LiveRow {
    std::size_t position;
    RowPointer place; ///< the slot that counts as the row's place, even if it was moved since
    RowPointer body;  ///< where its bytes are
    const Row& row;
};

/// Finds the rows of a table. Keeps, for each page of the table, the position of its first row;
/// that list grows as the table is walked through for the first time.
class TableRows {
public:
    /// `label` begins the sentences about what is passed over. The definition must outlive this.
    TableRows(PageSource& source, const TableDefinition& definition, std::string label);

    using Callback = std::function<bool(const LiveRow&)>;

    std::size_t count();
    /// All rows in order from a position on, until the callback says false.
    void forEach(const Callback& callback, std::size_t first = 0);
    /// The row at a position; false when there is none.
    bool at(std::size_t position, const Callback& callback);

    /// What was passed over; each row and page is told once, however often it is met.
    const Problems& problems() const { return problems_; }

private:
    void listPages();
    void listPagesByOwner();
    void visitPage(std::size_t index, const Callback& callback, bool& goOn);
    void countPage(std::size_t index);
    std::optional<std::size_t> pageOf(std::size_t position);
    bool visitSlot(const DataPage& page, std::size_t slot, std::size_t position,
                   const Callback& callback, bool& goOn);
    std::optional<DataPage> dataPage(std::uint32_t number);
    void addCounted(std::size_t nextPosition);
    void passOver(std::uint32_t page, const char* why);
    void passOverRow(RowPointer place, const char* why);

    PageSource* source_;
    const TableDefinition* definition_;
    std::string label_;
    bool listed_ = false;
    std::vector<std::uint32_t> pages_;
    /// Position of the first row of each page counted so far, and of the one to come after them.
    std::vector<std::uint32_t> firstPositions_;
    bool noting_ = false; ///< the page at hand is met for the first time
    Problems problems_;
};

} // namespace jet
