#include "jet/table_rows.h"

#include "jet/usage_map.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace jet {

TableRows::TableRows(PageSource& source, const TableDefinition& definition, std::string label)
    : source_(&source), definition_(&definition), label_(std::move(label)) {}

std::size_t TableRows::count() {
    listPages();
    while (firstPositions_.size() <= pages_.size())
        countPage(firstPositions_.size() - 1);
    return firstPositions_.back();
}

void TableRows::forEach(const Callback& callback, std::size_t first) {
    const auto start = pageOf(first);
    if (!start)
        return;
    const Callback fromFirst = [&](const LiveRow& live) {
        return live.position < first || callback(live);
    };
    bool goOn = true;
    visitPage(*start, fromFirst, goOn);
    for (std::size_t i = *start + 1; i < pages_.size() && goOn; ++i)
        visitPage(i, callback, goOn);
}

bool TableRows::at(std::size_t position, const Callback& callback) {
    const auto page = pageOf(position);
    if (!page)
        return false;
    bool goOn = true;
    visitPage(
        *page,
        [&](const LiveRow& live) { return live.position != position || (callback(live), false); },
        goOn);
    return !goOn;
}

/// Index of the page that has the row of that position; nothing past the last one.
std::optional<std::size_t> TableRows::pageOf(std::size_t position) {
    listPages();
    while (position >= firstPositions_.back() && firstPositions_.size() <= pages_.size())
        countPage(firstPositions_.size() - 1);
    if (position >= firstPositions_.back())
        return std::nullopt;
    const auto after = std::upper_bound(firstPositions_.begin(), firstPositions_.end(), position);
    return static_cast<std::size_t>(after - firstPositions_.begin()) - 1;
}

void TableRows::listPages() {
    if (std::exchange(listed_, true))
        return;
    auto pages = pagesInMap(*source_, definition_->ownedPages);
    if (pages) {
        pages_ = std::move(*pages);
    } else {
        problems_.add(label_ +
                      " : la carte de ses pages est illisible, tout le fichier est parcouru");
        listPagesByOwner();
    }
    firstPositions_.reserve(pages_.size() + 1);
    addCounted(0);
}

/// What a map would say can be found by looking at every page.
void TableRows::listPagesByOwner() {
    for (std::uint32_t number = 0; number < source_->pageCount(); ++number) {
        const auto page = source_->page(number);
        if (page && page->type() == PageType::Data && page->owner() == definition_->page)
            pages_.push_back(number);
    }
}

void TableRows::countPage(std::size_t index) {
    bool goOn = false;
    visitPage(index, {}, goOn);
}

/// Gives the rows of a page to the callback as long as it wants them, and the page its entry in
/// the list when it is met for the first time; then all its rows are counted in any case.
void TableRows::visitPage(std::size_t index, const Callback& callback, bool& goOn) {
    noting_ = index + 1 == firstPositions_.size();
    const std::size_t first = firstPositions_[index];
    std::size_t rows = 0;
    const auto data = dataPage(pages_[index]);
    const std::size_t slots = data ? data->slotCount() : 0;
    for (std::size_t slot = 0; slot < slots && (goOn || noting_); ++slot) {
        if (visitSlot(*data, slot, first + rows, callback, goOn))
            ++rows;
    }
    if (noting_ && firstPositions_.size() == index + 1)
        addCounted(first + rows);
}

std::optional<DataPage> TableRows::dataPage(std::uint32_t number) {
    const auto page = source_->page(number);
    auto data = page ? DataPage::of(*page, definition_->page, source_->format()) : std::nullopt;
    if (noting_ && !data)
        passOver(number, "ce n’est pas une page de données de la table");
    if (noting_ && data && !data->isSound())
        passOver(number, "elle annonce plus de lignes qu’elle n’en contient");
    return data;
}

void TableRows::addCounted(std::size_t nextPosition) {
    firstPositions_.push_back(static_cast<std::uint32_t>(nextPosition));
    // Pages can be lost without a trace, by a damaged map; the count of the definition then tells.
    if (firstPositions_.size() > pages_.size() && nextPosition < definition_->rowCount &&
        problems_.empty())
        problems_.add(label_ + " : elle annonce " + std::to_string(definition_->rowCount) +
                      " enregistrements, " + std::to_string(nextPosition) + " se lisent");
}

/// Whether there is a row in the slot.
bool TableRows::visitSlot(const DataPage& page, std::size_t index, std::size_t position,
                          const Callback& callback, bool& goOn) {
    const RowPointer place(page.page().number, static_cast<std::uint8_t>(index));
    const auto slot = page.slot(index);
    if (!slot) {
        passOverRow(place, "elle ne tient pas dans la page");
        return false;
    }
    if (slot->kind == Slot::Kind::Body || slot->kind == Slot::Kind::Deleted)
        return false;
    std::optional<PointedRow> moved;
    if (slot->kind == Slot::Kind::Pointer) {
        moved = followPointer(*source_, place, definition_->page, Slot::Kind::Body);
        if (!moved) {
            passOverRow(place, "elle a été déplacée et son renvoi ne mène à rien");
            return false;
        }
    }
    const Row::Parsed parsed = Row::parse(moved ? moved->row : slot->row, definition_->shape);
    if (!parsed.row) {
        passOverRow(place, parsed.fault);
        return false;
    }
    if (goOn)
        goOn = callback(LiveRow{position, place, moved ? moved->place : place, *parsed.row});
    return true;
}

void TableRows::passOver(std::uint32_t page, const char* why) {
    problems_.add(label_ + " : page " + std::to_string(page) + " passée, " + why);
}

void TableRows::passOverRow(RowPointer place, const char* why) {
    if (noting_)
        problems_.add(label_ + " : page " + std::to_string(place.page) + ", ligne " +
                      std::to_string(place.row) + " passée, " + why);
}

} // namespace jet
