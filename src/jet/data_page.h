#pragma once

#include "jet/page_source.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace jet {

/// What a slot of a data page leads to.
struct Slot {
    enum class Kind { InPlace, Pointer, Body, Deleted };
    Kind kind;
    Bytes row;
};

/// The rows of a page of type Data, by slot.
class DataPage {
public:
    /// Nothing when `page` is no data page of `owner`.
    static std::optional<DataPage> of(Page page, std::uint32_t owner, const Format& format);

    const Page& page() const { return page_; }
    /// False when the page claims more slots than it has room for; then it has none.
    bool isSound() const { return isSound_; }
    std::size_t slotCount() const { return slotCount_; }
    /// Nothing when there is no such slot or its row does not lie between the slots and the row
    /// before it.
    std::optional<Slot> slot(std::size_t index) const;

private:
    DataPage(Page page, const Format& format);

    Page page_;
    const Format* format_;
    std::size_t slotCount_;
    bool isSound_;
};

/// The row a pointer leads to, the page it lies on and its place there.
struct PointedRow {
    Page page;
    Bytes row;
    RowPointer place;
    RowPointer pointer; ///< the last slot on the way; `place` itself when there was none before it
};

/// Follows pointers from `start` to a row of the kind `wanted` on a page of `owner`, over at most
/// a few pointers in between; nothing when the way leads anywhere else.
std::optional<PointedRow> followPointer(PageSource& source, RowPointer start, std::uint32_t owner,
                                        Slot::Kind wanted);

} // namespace jet
