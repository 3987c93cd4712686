#pragma once

#include "jet/byte_writer.h"
#include "jet/format.h"

#include <cstddef>
#include <cstdint>

namespace jet {

enum class RowReplaced {
    Done,
    NoRoom, ///< the page is as it was
    Damaged ///< a slot of the page leads nowhere: packing the page would lose a row
};

/// Gives a slot of a data page another row and other flags, and packs the page: the rows one after
/// the other from its end, in the order of their slots. All other rows stay as they are, but for
/// what is left of deleted ones and of those that moved away.
RowReplaced replaceRow(PageImage& page, const Format& format, std::size_t slot, Bytes row,
                       std::uint16_t flags);

} // namespace jet
