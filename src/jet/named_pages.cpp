#include "jet/named_pages.h"

#include "jet/data_page.h"
#include "jet/table_rows.h"
#include "jet/usage_map.h"

namespace jet {

namespace {

/// A definition page names the one that continues it.
constexpr std::size_t kNextDefinitionAt = 4;

/// Definition pages that continue no other.
std::vector<std::uint32_t> definitionPages(PageSource& source) {
    std::vector<std::uint32_t> pages;
    std::unordered_set<std::uint32_t> continuing;
    for (std::uint32_t number = 0; number < source.pageCount(); ++number) {
        const auto page = source.page(number);
        if (!page || page->type() != PageType::Definition)
            continue;
        pages.push_back(number);
        continuing.insert(page->bytes.u32(kNextDefinitionAt));
    }
    std::erase_if(pages, [&](std::uint32_t number) { return continuing.contains(number); });
    return pages;
}

} // namespace

NamedPages::NamedPages(PageSource& source) : source_(&source), follower_(source) {
    for (const std::uint32_t page : definitionPages(source))
        readTable(page);
}

void NamedPages::readTable(std::uint32_t page) {
    tables_.insert(page);
    const auto definition = readTableDefinition(*source_, page);
    const auto tail = definition ? readTableTail(*definition) : Result<TableTail>(TableTail());
    if (!definition || !tail) {
        isWhole_ = false;
        return;
    }
    isWhole_ = addOwned(definition->ownedPages) && isWhole_;
    for (const auto& [column, maps] : tail->longColumns)
        isWhole_ = addOwned(maps.owned) && isWhole_;
    readPointers(*definition);
    readRows(*definition, *tail);
}

bool NamedPages::addOwned(RowPointer map) {
    const auto pages = pagesInMap(*source_, map);
    if (pages)
        owned_.insert(pages->begin(), pages->end());
    return pages.has_value();
}

void NamedPages::readPointers(const TableDefinition& definition) {
    const auto pages = pagesInMap(*source_, definition.ownedPages);
    for (const std::uint32_t number : pages.value_or(std::vector<std::uint32_t>())) {
        const auto page = source_->page(number);
        const auto data =
            page ? DataPage::of(*page, definition.page, source_->format()) : std::nullopt;
        for (std::size_t i = 0; data && i < data->slotCount(); ++i) {
            const auto slot = data->slot(i);
            if (slot && slot->kind == Slot::Kind::Pointer)
                named_.insert(RowPointer(slot->row.u32(0)).page);
        }
    }
}

void NamedPages::readRows(const TableDefinition& definition, const TableTail& tail) {
    TableRows rows(*source_, definition, {});
    rows.forEach([&](const LiveRow& live) {
        for (const ColumnPlace& place : definition.places) {
            if (!tail.longColumns.contains(place.number) || !live.row.isSet(place.number))
                continue;
            const auto cell = live.row.variableValue(place.variableIndex);
            const auto ignoreRecords = [](RowPointer) {};
            isWhole_ = cell && follower_.follow(*cell, ignoreRecords, [this](std::uint32_t page) {
                named_.insert(page);
            }) && isWhole_;
        }
        return true;
    });
    isWhole_ = rows.count() == definition.rowCount && rows.problems().empty() && isWhole_;
}

std::vector<std::uint32_t> NamedPages::lostPages() const {
    std::vector<std::uint32_t> lost;
    for (std::uint32_t number = 0; isWhole_ && number < source_->pageCount(); ++number) {
        const auto page = source_->page(number);
        if (page && page->type() == PageType::Data && !owned_.contains(number) &&
            !named_.contains(number) &&
            (page->owner() == kLongValueOwner || tables_.contains(page->owner())))
            lost.push_back(number);
    }
    return lost;
}

} // namespace jet
