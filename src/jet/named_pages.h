#pragma once

#include "jet/page_source.h"
#include "jet/record_follower.h"
#include "jet/table_definition.h"
#include "jet/table_tail.h"

#include <cstdint>
#include <unordered_set>
#include <vector>

namespace jet {

/// What the tables of a file, the system's own included, say of its pages: which their rows name,
/// be it in vain, and which their maps give them. In a damaged file a chain may lead to a page past
/// the end or to one that is free; were that page put to use, the chain would lead to somebody
/// else's content and nobody would notice any more.
///
/// Looks at every page and every row.
class NamedPages {
public:
    explicit NamedPages(PageSource& source);

    /// Whether a long value or the pointer of a moved row leads there, or should.
    bool isNamed(std::uint32_t page) const { return named_.contains(page); }

    /// Whether every table could be read to the end and has as many rows as it says.
    bool isWhole() const { return isWhole_; }

    /// Pages with rows or long values that no map gives to anyone and no row names: what a change
    /// that was cut short has left. None in a file that is not whole, where maps may be wrong.
    std::vector<std::uint32_t> lostPages() const;

private:
    void readTable(std::uint32_t page);
    void readRows(const TableDefinition& definition, const TableTail& tail);
    void readPointers(const TableDefinition& definition);
    bool addOwned(RowPointer map);

    PageSource* source_;
    RecordFollower follower_;
    std::unordered_set<std::uint32_t> tables_; ///< their definition pages
    std::unordered_set<std::uint32_t> named_;
    std::unordered_set<std::uint32_t> owned_;
    bool isWhole_ = true;
};

} // namespace jet
