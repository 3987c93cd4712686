#pragma once

#include <string>
#include <vector>

namespace common {

/// A column of a table: numbers, or formulas, or the names of the rows.
struct Column {
    enum class Kind { Numbers, Formulas, Names };

    std::u16string plain;        ///< head, as a spreadsheet has it
    std::u16string formula = {}; ///< the same, as it is printed; empty for words
    Kind kind = Kind::Numbers;

    bool operator==(const Column&) const = default;
};

struct Table {
    std::vector<Column> columns;
    std::vector<std::vector<std::u16string>> rows; ///< a cell for each column
};

} // namespace common
