#pragma once

#include "jet/bytes.h"
#include "jet/format.h"

#include <cstddef>
#include <optional>

namespace jet {

/// What the table says about all its rows.
struct RowShape {
    const Format* format;
    std::size_t maxColumns; ///< highest column number ever, plus 1
    bool hasVariableColumns;
};

/// The parts of a row, checked against its length: once parsed, its mask and the table of its
/// variable values lie inside it. Single values are checked when they are asked for.
class Row {
public:
    struct Parsed;
    static Parsed parse(Bytes bytes, const RowShape& shape);

    /// The column's bit in the mask: not NULL, or the value itself for a Boolean. Columns the row
    /// does not know, being older than they are, have none.
    bool isSet(std::size_t columnNumber) const {
        return columnNumber < columnCount_ &&
               (bytes_.u8(maskAt_ + columnNumber / 8) >> (columnNumber % 8) & 1) != 0;
    }

    /// `size` bytes of the fixed area at `offset`; nothing when they reach out of it.
    std::optional<Bytes> fixedValue(std::size_t offset, std::size_t size) const {
        const Bytes area = fixedArea();
        if (!area.has(offset, size))
            return std::nullopt;
        return area.part(offset, size);
    }
    std::size_t columnCount() const { return columnCount_; }
    std::size_t variableCount() const { return variableCount_; }
    /// Behind the column count, up to the first variable value.
    Bytes fixedArea() const { return bytes_.first(fixedEnd_).from(format_->rowNumber); }
    Bytes mask() const { return bytes_.from(maskAt_); }

    /// Variable value `index`, empty when the row has fewer; nothing when its bounds are none.
    std::optional<Bytes> variableValue(std::size_t index) const;

private:
    bool parseVariableTable(std::size_t end);
    std::size_t variableOffset(std::size_t index) const;
    std::size_t jumpsUpTo(std::size_t index) const;
    void dropDummyJump(std::size_t countAt);

    Bytes bytes_;
    const Format* format_ = nullptr;
    std::size_t columnCount_ = 0;
    std::size_t maskAt_ = 0;
    std::size_t variableCount_ = 0;
    std::size_t firstOffsetAt_ = 0; ///< entry of variable value 0; the others lie before it
    std::size_t jumpsAt_ = 0;       ///< Jet 3: the first jump byte; the others lie before it
    std::size_t jumpCount_ = 0;
    std::size_t fixedEnd_ = 0;    ///< where the fixed area ends at the latest
    std::size_t variableEnd_ = 0; ///< where the variable values end at the latest
};

struct Row::Parsed {
    std::optional<Row> row;
    const char* fault = nullptr; ///< French; why there is no row
};

} // namespace jet
