#pragma once

#include "jet/row.h"
#include "jet/table_definition.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace jet {

/// A row taken apart, to be put together again with other values.
class RowParts {
public:
    /// Nothing when one of its variable values lies outside the row.
    static std::optional<RowParts> of(const Row& row, const TableDefinition& definition);

    /// Makes a column NULL, a Boolean false.
    [[nodiscard]] bool clear(const ColumnPlace& place);
    /// Gives a column the bytes of a value; those of a Boolean that is true are none. A row older
    /// than the column learns of it and all others of the table. False when row and definition do
    /// not agree on where the value would stand.
    [[nodiscard]] bool set(const ColumnPlace& place, Bytes value);

    /// The row's bytes; may be longer than the format allows.
    std::vector<std::uint8_t> assemble() const;

private:
    explicit RowParts(const TableDefinition& definition) : definition_(&definition) {}
    bool makeKnown(const ColumnPlace& place);
    void setBit(std::size_t number, bool bit);
    void appendNumber(std::size_t number, std::vector<std::uint8_t>& out) const;
    void appendVariables(std::vector<std::uint8_t>& out) const;

    const TableDefinition* definition_;
    std::size_t columnCount_ = 0;
    std::vector<std::uint8_t> fixed_;
    std::vector<std::vector<std::uint8_t>> variable_;
    std::vector<std::uint8_t> mask_;
};

} // namespace jet
