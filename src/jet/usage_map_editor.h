#pragma once

#include "jet/page_changes.h"
#include "jet/page_taker.h"
#include "jet/result.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace jet {

/// Changes single bits of a usage map. A map in a row whose window the page lies outside of becomes
/// one that names bitmap pages; a map with a damaged row or bitmap page is not changed.
class UsageMapEditor {
public:
    enum class Kind {
        OwnedPages, ///< a page the map has no bit for is not in it
        FreePages   ///< a page the map has no bit for is free; those past the file's end are too
    };
    /// Ranks of the pages the map lies on and of bitmap pages that become necessary.
    struct Ranks {
        int newPages;
        int map;
    };

    static Result<UsageMapEditor> open(PageChanges& changes, PageTaker& taker, RowPointer map,
                                       Kind kind, Ranks ranks);

    bool contains(std::uint32_t page);
    Result<void> insert(std::uint32_t page) { return set(page, true); }
    Result<void> remove(std::uint32_t page) { return set(page, false); }

private:
    UsageMapEditor(PageChanges& changes, PageTaker& taker, Kind kind, Ranks ranks)
        : changes_(&changes), taker_(&taker), kind_(kind), ranks_(ranks) {}

    Bytes row() const;
    std::span<std::uint8_t> editRow();
    std::uint32_t pagesPerBitmap() const;
    Result<void> set(std::uint32_t page, bool bit);
    Result<void> setByReference(std::uint32_t page, bool bit);
    Result<void> convert();
    Result<std::uint32_t> bitmapFor(std::uint32_t page);
    PageImage newBitmap(std::uint32_t window) const;

    PageChanges* changes_;
    PageTaker* taker_;
    Kind kind_;
    Ranks ranks_;
    std::uint32_t page_ = 0; ///< the row lies on, with its offset and length there
    std::size_t rowAt_ = 0;
    std::size_t rowSize_ = 0;
};

} // namespace jet
