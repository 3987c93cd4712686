#include "jet/row_change.h"

#include "jet/data_page_builder.h"
#include "jet/data_page_editor.h"
#include "jet/long_value_pages.h"
#include "jet/long_value_writer.h"
#include "jet/usage_map_editor.h"

#include <algorithm>
#include <utility>

namespace jet {

namespace {

// Ranks of the pages, see PageChanges. The map of free pages comes before those of the owners: a
// page may be lost between them, but is never given away twice.
constexpr int kNewPages = 0;
constexpr int kFreeMap = 1;
constexpr int kOwnersMaps = 2;
constexpr int kRow = 3;

Failure damaged(const char* what) {
    return {Failure::Kind::Damaged, what};
}

bool same(const std::optional<Bytes>& a, const std::optional<Bytes>& b) {
    return a && b && std::equal(a->data(), a->data() + a->size(), b->data(), b->data() + b->size());
}

/// An empty text has no bytes to be elsewhere.
bool isOutside(const ChangedCell& cell, std::size_t longestInline) {
    return cell.isLong && !cell.absent && cell.bytes.size() > longestInline && !cell.bytes.empty();
}

std::optional<Bytes> storedValue(const Row& row, const ColumnPlace& place) {
    return place.fixed ? row.fixedValue(place.fixedOffset, place.size)
                       : row.variableValue(place.variableIndex);
}

bool isSameCell(const Row& before, const Row& after, const Column& column,
                const ColumnPlace& place) {
    if (before.isSet(place.number) != after.isSet(place.number))
        return false;
    if (!before.isSet(place.number) || column.type == ColumnType::Boolean)
        return true;
    const auto stored = storedValue(before, place); // damaged ones stay so
    return !stored || same(storedValue(after, place), stored);
}

} // namespace

Result<void> RowChange::plan(RowPointer place, std::vector<ChangedCell> cells) {
    cells_ = std::move(cells);
    outside_.assign(cells_.size(), longValueCell(LongValueKind::Single, 0, {}));
    const auto site = locate(place);
    const auto row = site ? Row::parse(site->row, definition_->shape).row : std::nullopt;
    parts_ = row ? RowParts::of(*row, *definition_) : std::nullopt;
    if (!parts_)
        return damaged("l’enregistrement est endommagé");
    for (const ChangedCell& cell : cells_)
        if (!(cell.absent ? parts_->clear(cell.place) : parts_->set(cell.place, {})))
            return damaged("l’enregistrement ne correspond pas à la définition");

    const auto form = chooseForm(*site);
    if (!form)
        return Failure{Failure::Kind::Refused, "l’enregistrement ne tient pas dans une page"};
    if (auto stored = store(form->longestInline); !stored)
        return stored;
    const RowBytes bytes = assemble(form->longestInline);
    if (!isAsAsked(*row, bytes, form->longestInline))
        return damaged("la définition mêle les colonnes de l’enregistrement");
    noteLeftValues(*row);
    if (auto put = form->staysOnPage ? replace(*site, bytes) : moveOut(*site, bytes); !put)
        return put;
    return markTaken();
}

std::optional<PointedRow> RowChange::locate(RowPointer place) {
    PageSource& source = changes_->source();
    const auto page = source.page(place.page);
    const auto data = page ? DataPage::of(*page, definition_->page, source.format()) : std::nullopt;
    const auto slot = data ? data->slot(place.row) : std::nullopt;
    if (slot && slot->kind == Slot::Kind::InPlace)
        return PointedRow{*page, slot->row, place, place};
    return followPointer(source, place, definition_->page, Slot::Kind::Body);
}

/// A long value stays in the row if it can; then it goes outside; then the row moves.
std::optional<RowChange::Form> RowChange::chooseForm(const PointedRow& site) {
    for (const std::size_t longestInline : {kLongestInline, std::size_t{0}})
        if (fits(site, assemble(longestInline)))
            return Form{longestInline, true};
    for (const std::size_t longestInline : {kLongestInline, std::size_t{0}})
        if (assemble(longestInline).size() <= changes_->format().longestRow)
            return Form{longestInline, false};
    return std::nullopt;
}

/// Whether the page the row lies on takes it in its new form.
bool RowChange::fits(const PointedRow& site, Bytes row) {
    const Bytes there = changes_->page(site.place.page);
    PageImage page(there.data(), there.data() + there.size());
    return row.size() <= changes_->format().longestRow &&
           replaceRow(page, changes_->format(), site.place.row, row, 0) != RowReplaced::NoRoom;
}

/// What stands in the row for a cell that is not absent.
RowChange::RowBytes RowChange::storedForm(std::size_t i, std::size_t longestInline) const {
    const ChangedCell& cell = cells_[i];
    if (!cell.isLong)
        return cell.bytes;
    return isOutside(cell, longestInline) ? outside_[i] : inlineCell(cell.bytes);
}

RowChange::RowBytes RowChange::assemble(std::size_t longestInline) const {
    RowParts parts = *parts_;
    for (std::size_t i = 0; i < cells_.size(); ++i)
        if (!cells_[i].absent && !parts.set(cells_[i].place, storedForm(i, longestInline)))
            return {};
    return parts.assemble();
}

/// Gives each long value that does not stay in the row its pages, and its column those.
Result<void> RowChange::store(std::size_t longestInline) {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        const ChangedCell& cell = cells_[i];
        if (!isOutside(cell, longestInline))
            continue;
        const auto maps = tail_->longColumns.find(cell.place.number);
        if (maps == tail_->longColumns.end())
            return damaged("la définition ne dit pas où sont les pages de la colonne");
        std::vector<std::uint32_t> pages;
        auto stored = storeOnNewPages(cell.bytes, *changes_, taker_, kNewPages, pages);
        if (!stored)
            return stored.error();
        outside_[i] = std::move(*stored);
        if (auto added = addToMap(maps->second.owned, pages); !added)
            return added;
    }
    return {};
}

Result<void> RowChange::replace(const PointedRow& site, Bytes row) {
    const bool isMoved = !(site.pointer == site.place);
    PageImage* page = changes_->edit(site.place.page, kRow);
    if (!page || replaceRow(*page, changes_->format(), site.place.row, row,
                            isMoved ? kSlotBody : std::uint16_t{0}) != RowReplaced::Done)
        return damaged("la page de l’enregistrement est endommagée");
    return {};
}

/// The row gets a page of its own; what led to its old place leads there.
Result<void> RowChange::moveOut(const PointedRow& site, Bytes row) {
    const auto number = taker_.take();
    if (!number)
        return number.error();
    DataPageBuilder fresh(*number, definition_->page, changes_->format());
    const auto body = fresh.add(row, 0, kSlotBody);
    if (!body)
        return Failure{Failure::Kind::Refused, "l’enregistrement ne tient pas dans une page"};
    changes_->put(*number, fresh.image(), kNewPages);
    for (const RowPointer map : {definition_->ownedPages, definition_->pagesWithRoom})
        if (auto added = addToMap(map, {&*number, 1}); !added)
            return added;

    ByteWriter pointer;
    pointer.u32(body->stored());
    PageImage* page = changes_->edit(site.pointer.page, kRow);
    if (!page || replaceRow(*page, changes_->format(), site.pointer.row, pointer.written(),
                            kSlotPointer) != RowReplaced::Done)
        return damaged("la page de l’enregistrement est endommagée");
    return {};
}

Result<void> RowChange::addToMap(RowPointer map, std::span<const std::uint32_t> pages) {
    auto editor = UsageMapEditor::open(*changes_, taker_, map, UsageMapEditor::Kind::OwnedPages,
                                       {kNewPages, kOwnersMaps});
    if (!editor)
        return editor.error();
    for (const std::uint32_t page : pages)
        if (auto inserted = editor->insert(page); !inserted)
            return inserted;
    return {};
}

/// Tells the map of free pages of all that were taken, of those it takes itself as well.
Result<void> RowChange::markTaken() {
    if (taker_.taken().empty())
        return {};
    auto free = UsageMapEditor::open(*changes_, taker_, kGlobalMap, UsageMapEditor::Kind::FreePages,
                                     {kNewPages, kFreeMap});
    if (!free)
        return free.error();
    for (std::size_t i = 0; i < taker_.taken().size(); ++i)
        if (auto removed = free->remove(taker_.taken()[i]); !removed)
            return removed;
    return {};
}

void RowChange::noteLeftValues(const Row& row) {
    for (const ChangedCell& cell : cells_) {
        const auto stored = row.variableValue(cell.place.variableIndex);
        if (cell.isLong && row.isSet(cell.place.number) && stored)
            left_.push_back({cell.place.number, {stored->data(), stored->data() + stored->size()}});
    }
}

/// In a damaged definition columns can share their bytes or bits: then a change of one would be one
/// of the other.
bool RowChange::isAsAsked(const Row& before, Bytes after, std::size_t longestInline) const {
    const auto row = Row::parse(after, definition_->shape).row;
    if (!row)
        return false;
    for (std::size_t i = 0; i < definition_->places.size(); ++i) {
        const auto cell = std::find_if(cells_.begin(), cells_.end(),
                                       [i](const ChangedCell& other) { return other.column == i; });
        const bool isFine =
            cell == cells_.end()
                ? isSameCell(before, *row, definition_->columns[i], definition_->places[i])
            : cell->absent ? !row->isSet(cell->place.number)
                           : row->isSet(cell->place.number) &&
                                 same(storedValue(*row, cell->place),
                                      storedForm(static_cast<std::size_t>(cell - cells_.begin()),
                                                 longestInline));
        if (!isFine)
            return false;
    }
    return true;
}

} // namespace jet
