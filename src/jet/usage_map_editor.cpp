#include "jet/usage_map_editor.h"

#include "jet/data_page.h"
#include "jet/usage_map.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace jet {

namespace {

Failure damaged(RowPointer map) {
    return {Failure::Kind::Damaged, "la carte de pages (page " + std::to_string(map.page) +
                                        ", ligne " + std::to_string(map.row) + ") est illisible"};
}

bool bitOf(Bytes bits, std::size_t index) {
    return (bits.u8(index / 8) >> (index % 8) & 1) != 0;
}

void setBit(std::span<std::uint8_t> bits, std::size_t index, bool bit) {
    const int mask = 1 << (index % 8);
    std::uint8_t& byte = bits[index / 8];
    byte = static_cast<std::uint8_t>(bit ? byte | mask : byte & ~mask);
}

/// Whether a map in a row has a bit for the page.
bool hasBitFor(std::uint32_t page, Bytes map) {
    const std::uint32_t first = map.u32(kMapFirstPageAt);
    return page >= first && (page - first) / 8 < map.size() - kMapBitsAt;
}

} // namespace

Result<UsageMapEditor> UsageMapEditor::open(PageChanges& changes, PageTaker& taker, RowPointer map,
                                            Kind kind, Ranks ranks) {
    PageSource& source = changes.source();
    const std::uint32_t owner = kind == Kind::FreePages ? kGlobalMapOwner : kMapOwner;
    const auto found = followPointer(source, map, owner, Slot::Kind::InPlace);
    if (!found || !pagesInMap(source, map, owner))
        return damaged(map);
    UsageMapEditor editor(changes, taker, kind, ranks);
    editor.page_ = found->page.number;
    editor.rowAt_ = static_cast<std::size_t>(found->row.data() - found->page.bytes.data());
    editor.rowSize_ = found->row.size();
    return editor;
}

Bytes UsageMapEditor::row() const {
    return changes_->page(page_).part(rowAt_, rowSize_);
}

std::span<std::uint8_t> UsageMapEditor::editRow() {
    return std::span(*changes_->edit(page_, ranks_.map)).subspan(rowAt_, rowSize_);
}

std::uint32_t UsageMapEditor::pagesPerBitmap() const {
    return static_cast<std::uint32_t>((changes_->format().pageSize - kBitmapAt) * 8);
}

bool UsageMapEditor::contains(std::uint32_t page) {
    const bool outside = kind_ == Kind::FreePages;
    const Bytes map = row();
    if (map.u8(0) == kInlineMap)
        return hasBitFor(page, map) ? bitOf(map.from(kMapBitsAt), page - map.u32(kMapFirstPageAt))
                                    : outside;
    const std::uint32_t bitmap = map.u32(kMapReferencesAt + 4 * (page / pagesPerBitmap()));
    return bitmap == 0 ? outside
                       : bitOf(changes_->page(bitmap).from(kBitmapAt), page % pagesPerBitmap());
}

Result<void> UsageMapEditor::set(std::uint32_t page, bool bit) {
    if (contains(page) == bit)
        return {};
    if (row().u8(0) == kInlineMap) {
        if (hasBitFor(page, row())) {
            const std::span<std::uint8_t> map = editRow();
            setBit(map.subspan(kMapBitsAt), page - Bytes(map).u32(kMapFirstPageAt), bit);
            return {};
        }
        if (auto converted = convert(); !converted)
            return converted;
    }
    return setByReference(page, bit);
}

Result<void> UsageMapEditor::setByReference(std::uint32_t page, bool bit) {
    const auto bitmap = bitmapFor(page);
    if (!bitmap)
        return bitmap.error();
    PageImage* image = changes_->edit(*bitmap, ranks_.map);
    setBit(std::span(*image).subspan(kBitmapAt), page % pagesPerBitmap(), bit);
    return {};
}

/// Makes a map in a row one by reference that marks the same pages.
Result<void> UsageMapEditor::convert() {
    std::vector<std::uint32_t> marked;
    for (std::uint32_t page = 0; page < changes_->pageCount(); ++page)
        if (hasBitFor(page, row()) && contains(page))
            marked.push_back(page);
    const std::span<std::uint8_t> map = editRow();
    std::fill(map.begin(), map.end(), std::uint8_t{0});
    map[0] = kMapByReference;
    // Of the map of free pages every page of the file needs a bit, or it would count as free.
    if (kind_ == Kind::FreePages)
        for (std::uint32_t page = 0; page < changes_->pageCount(); page += pagesPerBitmap())
            if (const auto bitmap = bitmapFor(page); !bitmap)
                return bitmap.error();
    for (const std::uint32_t page : marked)
        if (auto done = setByReference(page, true); !done)
            return done;
    return {};
}

/// The bitmap page that has the page's bit, made if need be.
Result<std::uint32_t> UsageMapEditor::bitmapFor(std::uint32_t page) {
    const std::uint32_t window = page / pagesPerBitmap();
    const std::size_t at = kMapReferencesAt + 4 * std::size_t{window};
    if (!row().has(at, 4))
        return Failure{Failure::Kind::Refused, "une carte de pages est pleine"};
    if (const std::uint32_t bitmap = row().u32(at); bitmap != 0) {
        const Bytes there = changes_->page(bitmap);
        if (there.empty() || there.u8(0) != static_cast<std::uint8_t>(PageType::UsageBitmap))
            return damaged(RowPointer(page_, 0));
        return bitmap;
    }
    const auto taken = taker_->take();
    if (!taken)
        return taken.error();
    changes_->put(*taken, newBitmap(window), ranks_.newPages);
    put32(editRow(), at, *taken);
    return *taken;
}

/// Nothing marked but, in the map of free pages, those past the end. Pages of the file that the map
/// did not speak of count as used from now on: better lost than given away twice.
PageImage UsageMapEditor::newBitmap(std::uint32_t window) const {
    PageImage image(changes_->format().pageSize);
    image[0] = static_cast<std::uint8_t>(PageType::UsageBitmap);
    image[1] = 1;
    if (kind_ == Kind::FreePages)
        for (std::uint32_t i = 0; i < pagesPerBitmap(); ++i)
            if (std::uint64_t{window} * pagesPerBitmap() + i >= changes_->pageCount())
                setBit(std::span(image).subspan(kBitmapAt), i, true);
    return image;
}

} // namespace jet
