#pragma once

#include "jet/format.h"
#include "jet/output_file.h"
#include "jet/usage_map_writer.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace jet {

/// Key of one or more columns, made so that keys compare as byte strings.
class IndexKey {
public:
    IndexKey& add(std::int32_t number);
    /// A text of letters A to Z, digits, spaces and underscores; see isIndexable.
    IndexKey& add(std::u16string_view text);
    const std::vector<std::uint8_t>& bytes() const { return bytes_; }

private:
    std::vector<std::uint8_t> bytes_;
};

/// Whether the text has only characters whose key codes are known here.
bool isIndexable(std::u16string_view text);

/// One index: all its entries are gathered, then written at once as a tree.
class IndexBuilder {
public:
    void add(const IndexKey& key, RowPointer row);
    std::uint32_t differentKeys();

    /// Writes the tree with its root on page `root`; further pages are allocated. Gives the pages
    /// of the index. `definition` is the page of its table's definition.
    PageSet write(std::uint32_t root, std::uint32_t definition, OutputFile& file);

private:
    /// Key, row, and on inner pages the child, as they stand on the page.
    using Entry = std::vector<std::uint8_t>;

    void sort();

    std::vector<Entry> entries_;
};

} // namespace jet
