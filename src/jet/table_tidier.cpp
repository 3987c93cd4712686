#include "jet/table_tidier.h"

#include "jet/data_page.h"
#include "jet/data_page_builder.h"
#include "jet/data_page_editor.h"
#include "jet/long_value_pages.h"
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
    listCandidates(left);
    if (!lookThroughRows())
        return;
    deleteLostBodies();
    freePages();
}

/// Pages with one record only; the others hold values of other rows.
void TableTidier::listCandidates(std::span<const RowChange::LeftValue> left) {
    PageSource& source = changes_->source();
    RecordFollower follower(source);
    for (const RowChange::LeftValue& value : left) {
        follower.follow(value.cell, [&](RowPointer record) {
            const auto page = source.page(record.page);
            const auto data =
                page ? DataPage::of(*page, kLongValueOwner, source.format()) : std::nullopt;
            if (data && data->slotCount() == 1)
                candidates_.emplace(record.page, value.columnNumber);
        });
    }
}

/// False when not all rows could be looked at.
bool TableTidier::lookThroughRows() {
    TableRows rows(changes_->source(), *definition_, {});
    RecordFollower follower(changes_->source());
    bool isWhole = true;
    rows.forEach([&](const LiveRow& live) {
        if (!(live.body == live.place))
            bodies_.insert(live.body.stored());
        for (std::size_t i = 0; i < definition_->places.size() && !candidates_.empty(); ++i) {
            const ColumnPlace& place = definition_->places[i];
            const auto cell =
                tail_->longColumns.contains(place.number) && live.row.isSet(place.number)
                    ? live.row.variableValue(place.variableIndex)
                    : std::nullopt;
            if (cell && !follower.follow(
                            *cell, [this](RowPointer record) { candidates_.erase(record.page); }))
                isWhole = false;
        }
        return isWhole;
    });
    return isWhole && rows.problems().empty();
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
