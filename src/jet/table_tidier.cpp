#include "jet/table_tidier.h"

#include "jet/data_page.h"
#include "jet/data_page_builder.h"
#include "jet/data_page_editor.h"
#include "jet/record_follower.h"
#include "jet/table_rows.h"
#include "jet/usage_map.h"

namespace jet {

namespace {

// A page leaves its owner before it is free, so that it never belongs to two.
constexpr int kPages = 0;
constexpr int kOwnersMaps = 1;
constexpr int kFreeMap = 2;

} // namespace

void TableTidier::plan(std::span<const RowChange::LeftValue> left) {
    if (!lookThroughRows())
        return;
    const NamedPages named(changes_->source());
    listLeft(left);
    if (named.isWhole())
        listOwned();
    planCandidates(named);
}

void TableTidier::planLost() {
    if (!lookThroughRows())
        return;
    const NamedPages named(changes_->source());
    if (!named.isWhole())
        return;
    listOwned();
    planCandidates(named);
}

void TableTidier::planCandidates(const NamedPages& named) {
    std::erase_if(candidates_, [&](const auto& entry) { return named.isNamed(entry.first); });
    deleteLostBodies();
    freePages();
}

void TableTidier::listLeft(std::span<const RowChange::LeftValue> left) {
    RecordFollower follower(changes_->source());
    for (const RowChange::LeftValue& value : left)
        follower.follow(value.cell,
                        [&](RowPointer record) { addCandidate(record.page, value.columnNumber); });
}

/// What an earlier change could not give back any more.
void TableTidier::listOwned() {
    for (const auto& [column, maps] : tail_->longColumns) {
        const auto pages = pagesInMap(changes_->source(), maps.owned);
        for (const std::uint32_t page : pages.value_or(std::vector<std::uint32_t>()))
            addCandidate(page, column);
    }
}

/// Pages with one record at most; the others hold values of other rows.
void TableTidier::addCandidate(std::uint32_t number, std::size_t columnNumber) {
    PageSource& source = changes_->source();
    const auto page = source.page(number);
    const auto data = page ? DataPage::of(*page, kLongValueOwner, source.format()) : std::nullopt;
    if (data && data->isSound() && data->slotCount() <= 1)
        candidates_.emplace(number, columnNumber);
}

/// False when not all rows could be looked at.
bool TableTidier::lookThroughRows() {
    TableRows rows(changes_->source(), *definition_, {});
    rows.forEach([&](const LiveRow& live) {
        if (!(live.body == live.place))
            bodies_.insert(live.body.stored());
        return true;
    });
    return rows.problems().empty();
}

void TableTidier::deleteLostBodies() {
    PageSource& source = changes_->source();
    const auto pages = pagesInMap(source, definition_->ownedPages);
    for (const std::uint32_t number : pages.value_or(std::vector<std::uint32_t>())) {
        const auto page = source.page(number);
        const auto data =
            page ? DataPage::of(*page, definition_->page, source.format()) : std::nullopt;
        for (std::size_t i = 0; data && i < data->slotCount(); ++i) {
            const auto slot = data->slot(i);
            const RowPointer place(number, static_cast<std::uint8_t>(i));
            if (slot && slot->kind == Slot::Kind::Body && !bodies_.contains(place.stored()))
                replaceRow(*changes_->edit(number, kPages), source.format(), i, {}, kSlotDeleted);
        }
    }
}

void TableTidier::freePages() {
    using Kind = UsageMapEditor::Kind;
    auto free =
        UsageMapEditor::open(*changes_, taker_, kGlobalMap, Kind::FreePages, {kPages, kFreeMap});
    for (const auto& [page, column] : candidates_) {
        const auto maps = tail_->longColumns.find(column);
        if (!free || maps == tail_->longColumns.end())
            return;
        auto owned = UsageMapEditor::open(*changes_, taker_, maps->second.owned, Kind::OwnedPages,
                                          {kPages, kOwnersMaps});
        auto room = UsageMapEditor::open(*changes_, taker_, maps->second.withRoom, Kind::OwnedPages,
                                         {kPages, kOwnersMaps});
        if (!owned || !room || !owned->contains(page))
            continue;
        changes_->put(page, DataPageBuilder(page, kLongValueOwner, changes_->format()).image(),
                      kPages);
        // Bits are taken out of maps that have them, and put in one that needs none for a page
        // it does not speak of: no map grows by this.
        if (owned->remove(page) && room->remove(page))
            (void)free->insert(page);
    }
}

} // namespace jet
