#pragma once

#include "jet/data_page_builder.h"
#include "jet/output_file.h"
#include "jet/usage_map_writer.h"

#include <optional>
#include <vector>

namespace jet {

/// Header of a value of `length` bytes; of one that stays in its row, it comes before the value.
std::vector<std::uint8_t> longValueCell(LongValueKind kind, std::size_t length, RowPointer pointer);

/// Cell of a value that stays in its row.
std::vector<std::uint8_t> inlineCell(Bytes value);

/// Stores the Memo or OLE values of one column on pages of their own: values that fit a page share
/// pages, longer ones become a chain of pages.
class LongValueWriter {
public:
    explicit LongValueWriter(OutputFile& file) : file_(&file) {}

    /// Stores a value that is not empty; gives its cell.
    std::vector<std::uint8_t> store(Bytes value);
    /// Writes the page that still had room.
    void flush();

    const PageSet& owned() const { return owned_; }
    const PageSet& withRoom() const { return withRoom_; }

private:
    RowPointer storeSingle(Bytes value);
    RowPointer storeChain(Bytes value);
    DataPageBuilder newPage();

    OutputFile* file_;
    std::optional<DataPageBuilder> shared_; ///< page that takes further values
    PageSet owned_;
    PageSet withRoom_;
};

} // namespace jet
