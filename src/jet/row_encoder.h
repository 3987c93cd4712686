#pragma once

#include "jet/byte_writer.h"
#include "jet/column.h"
#include "jet/table_definition.h"

#include <cstddef>
#include <vector>

namespace jet {

/// Where new rows keep their columns: numbers in the order of the columns, fixed values one after
/// the other, a Boolean nothing but its bit.
std::vector<ColumnPlace> placesFor(const std::vector<Column>& columns);

/// Builds a row of Jet 4, cell by cell in the order of the columns.
class RowEncoder {
public:
    explicit RowEncoder(const std::vector<ColumnPlace>& places);

    void begin();
    void boolean(const ColumnPlace& place, bool value);
    void null(const ColumnPlace& place);
    void bytes(const ColumnPlace& place, Bytes value);
    /// Length of a row whose variable values take that many bytes in all.
    std::size_t sizeWith(std::size_t variableBytes) const;
    /// The row; good until the next begin().
    Bytes finish();

private:
    void setBit(const ColumnPlace& place);

    std::size_t columnCount_;
    std::size_t variableCount_ = 0;
    std::vector<std::uint8_t> fixed_; ///< column count and fixed values
    std::vector<std::uint8_t> mask_;
    std::vector<std::uint8_t> variable_;
    std::vector<std::size_t> offsets_; ///< of the variable values so far, from the row's start
    ByteWriter row_;
};

} // namespace jet
