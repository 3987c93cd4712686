#include "jet/row_parts.h"

#include "jet/byte_writer.h"

#include <algorithm>

namespace jet {

namespace {

std::vector<std::uint8_t> copyOf(Bytes bytes) {
    return {bytes.data(), bytes.data() + bytes.size()};
}

/// Jet 3: what stands in front of n. Offsets have one byte, so for each 256 bytes of the row there
/// is the number of the first offset (the end counts as the last) that reaches beyond them; where
/// none does, a byte that says nothing. Nearest to n first, that is, from the last to the first.
std::vector<std::uint8_t> jumpBytes(const std::vector<std::size_t>& offsets, std::size_t count) {
    constexpr std::uint8_t kNoOffset = 0xFF;
    std::vector<std::uint8_t> jumps(count, kNoOffset);
    for (std::size_t i = 0; i < count; ++i) {
        const auto beyond = std::lower_bound(offsets.begin(), offsets.end(), 256 * (i + 1));
        if (beyond != offsets.end())
            jumps[count - 1 - i] = static_cast<std::uint8_t>(beyond - offsets.begin());
    }
    return jumps;
}

} // namespace

std::optional<RowParts> RowParts::of(const Row& row, const TableDefinition& definition) {
    RowParts parts(definition);
    parts.columnCount_ = row.columnCount();
    parts.fixed_ = copyOf(row.fixedArea());
    for (std::size_t i = 0; i < row.variableCount(); ++i) {
        const auto value = row.variableValue(i);
        if (!value)
            return std::nullopt;
        parts.variable_.push_back(copyOf(*value));
    }
    parts.mask_ = copyOf(row.mask());
    return parts;
}

bool RowParts::clear(const ColumnPlace& place) {
    if (place.number < columnCount_)
        setBit(place.number, false);
    if (!place.fixed && place.variableIndex < variable_.size())
        variable_[place.variableIndex].clear();
    return true;
}

bool RowParts::set(const ColumnPlace& place, Bytes value) {
    if (!makeKnown(place))
        return false;
    setBit(place.number, true);
    if (place.fixed)
        putBytes(fixed_, place.fixedOffset, value);
    else
        variable_[place.variableIndex] = copyOf(value);
    return true;
}

bool RowParts::makeKnown(const ColumnPlace& place) {
    const TableDefinition& table = *definition_;
    if (place.number >= columnCount_) {
        const std::size_t known = columnCount_;
        columnCount_ = std::min(table.shape.maxColumns, kMaxColumns);
        mask_.resize((columnCount_ + 7) / 8);
        for (std::size_t i = known; i < columnCount_; ++i) // spare bits may have been anything
            setBit(i, false);
        std::size_t end = fixed_.size();
        for (std::size_t i = 0; i < table.places.size(); ++i)
            if (table.places[i].fixed && table.columns[i].type != ColumnType::Boolean)
                end = std::max(end, table.places[i].fixedOffset + table.places[i].size);
        fixed_.resize(std::min(end, table.shape.format->longestRow));
    }
    if (!place.fixed && place.variableIndex >= variable_.size())
        variable_.resize(std::max(variable_.size(), std::min(table.variableColumns, kMaxColumns)));
    return place.number < columnCount_ &&
           (place.fixed ? Bytes(fixed_).has(place.fixedOffset, place.size)
                        : place.variableIndex < variable_.size());
}

void RowParts::setBit(std::size_t number, bool bit) {
    std::uint8_t& byte = mask_[number / 8];
    const int mask = 1 << (number % 8);
    byte = static_cast<std::uint8_t>(bit ? byte | mask : byte & ~mask);
}

void RowParts::appendNumber(std::size_t number, std::vector<std::uint8_t>& out) const {
    for (std::size_t i = 0; i < definition_->shape.format->rowNumber; ++i)
        out.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

std::vector<std::uint8_t> RowParts::assemble() const {
    std::vector<std::uint8_t> row;
    appendNumber(columnCount_, row);
    row.insert(row.end(), fixed_.begin(), fixed_.end());
    if (definition_->shape.hasVariableColumns)
        appendVariables(row);
    row.insert(row.end(), mask_.begin(), mask_.end());
    return row;
}

/// The values, their end, their offsets from the last to the first, jump bytes, their number.
void RowParts::appendVariables(std::vector<std::uint8_t>& row) const {
    std::vector<std::size_t> offsets;
    for (const auto& value : variable_) {
        offsets.push_back(row.size());
        row.insert(row.end(), value.begin(), value.end());
    }
    offsets.push_back(row.size());
    for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset)
        appendNumber(*offset, row);
    const std::size_t number = definition_->shape.format->rowNumber;
    if (number == 1) {
        // The jump bytes count towards the length that says how many there are.
        const std::size_t others = row.size() + number + mask_.size();
        std::size_t jumps = 0;
        while ((others + jumps - 1) / 256 > jumps)
            ++jumps;
        const std::vector<std::uint8_t> bytes = jumpBytes(offsets, jumps);
        row.insert(row.end(), bytes.begin(), bytes.end());
    }
    appendNumber(variable_.size(), row);
}

} // namespace jet
