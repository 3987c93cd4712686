#include "jet/table_definition.h"

#include "jet/text_codec.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace jet {

namespace {

/// 255 columns and 32 indexes with the longest names take 14 pages of Jet 4, 26 of Jet 3.
constexpr std::size_t kMaxDefinitionPages = 64;
constexpr std::size_t kNextPageAt = 4;
constexpr std::size_t kLengthAt = 8;
constexpr std::size_t kContinuationAt = 8; ///< content of a page that continues another
constexpr std::uint8_t kCompressionAllowed = 1;

Failure damaged(std::uint32_t page, const char* what) {
    return {Failure::Kind::Damaged, "la définition (page " + std::to_string(page) + ") " + what};
}

bool isDefinitionPage(const std::optional<Page>& page) {
    return page && page->type() == PageType::Definition;
}

/// The content of the first page, header included, and of those that continue it, as far as the
/// stated length goes.
Result<std::vector<std::uint8_t>> collectPages(PageSource& source, std::uint32_t first) {
    std::vector<std::uint8_t> content;
    std::vector<std::uint32_t> visited;
    std::size_t length = 0;
    std::uint32_t number = first;
    do {
        const auto page = source.page(number);
        if (!isDefinitionPage(page))
            return damaged(number, "n’est pas une page de définition");
        if (std::find(visited.begin(), visited.end(), number) != visited.end())
            return damaged(number, "revient sur elle-même");
        if (visited.size() == kMaxDefinitionPages)
            return damaged(first, "compte trop de pages");
        if (visited.empty())
            length = page->bytes.u32(kLengthAt);
        const Bytes part = visited.empty() ? page->bytes : page->bytes.from(kContinuationAt);
        content.insert(content.end(), part.data(), part.data() + part.size());
        visited.push_back(number);
        number = page->bytes.u32(kNextPageAt);
    } while (number != 0 && content.size() < length);
    content.resize(std::min(content.size(), length));
    return content;
}

ColumnType columnType(std::uint8_t stored) {
    const bool known = (stored >= 1 && stored <= 12) || (stored >= 15 && stored <= 17);
    return known ? static_cast<ColumnType>(stored) : ColumnType::Unknown;
}

/// Column length as the user knows it: characters for a Text, bytes for others.
int declaredLength(ColumnType type, std::size_t bytes, const Format& format) {
    const bool halved = type == ColumnType::Text && format.wideText;
    return static_cast<int>(halved ? bytes / 2 : bytes);
}

Column readColumn(Bytes block, const Format& format) {
    const std::uint8_t flags = block.u8(format.columnFlagsAt);
    Column column;
    column.type = columnType(block.u8(0));
    column.length = declaredLength(column.type, block.u16(format.columnLengthAt), format);
    column.fixedLength = (flags & kColumnFixed) != 0;
    column.autoNumber = (flags & kColumnAutoNumber) != 0;
    column.compressible =
        format.compressionAt != 0 && (block.u8(format.compressionAt) & kCompressionAllowed) != 0;
    if (column.type == ColumnType::Decimal) {
        column.precision = block.u8(format.decimalDigitsAt);
        column.scale = block.u8(format.decimalDigitsAt + 1);
    }
    return column;
}

ColumnPlace readPlace(Bytes block, ColumnType type, const Format& format) {
    ColumnPlace place;
    place.number = block.u16(format.columnNumberAt);
    place.variableIndex = block.u16(format.variableIndexAt);
    place.fixedOffset = block.u16(format.fixedOffsetAt);
    place.fixed = (block.u8(format.columnFlagsAt) & kColumnFixed) != 0;
    const std::size_t natural = fixedSizeOf(type);
    place.size = natural != 0 ? natural : block.u16(format.columnLengthAt);
    return place;
}

/// Takes the name at `at` and moves behind it; nothing when it does not fit.
std::optional<std::u16string> takeName(Bytes content, std::size_t& at, const Format& format) {
    if (!content.has(at, format.nameLength))
        return std::nullopt;
    const std::size_t length =
        format.nameLength == 1 ? std::size_t{content.u8(at)} : content.u16(at);
    at += format.nameLength;
    if (length == 0 || (format.wideText && length % 2 != 0) || !content.has(at, length))
        return std::nullopt;
    std::u16string name;
    decodeText(content.part(at, length), format.wideText ? TextForm::Utf16 : TextForm::Windows1252,
               name);
    at += length;
    return name;
}

void sortByNumber(TableDefinition& table) {
    std::vector<std::size_t> order(table.places.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&table](std::size_t a, std::size_t b) {
        return table.places[a].number < table.places[b].number;
    });
    TableDefinition sorted;
    for (const std::size_t i : order) {
        sorted.columns.push_back(std::move(table.columns[i]));
        sorted.places.push_back(table.places[i]);
    }
    table.columns = std::move(sorted.columns);
    table.places = std::move(sorted.places);
}

/// Column blocks, then names. Counts are held against the bytes there are before anything is
/// reserved for them.
const char* readColumns(Bytes content, const Format& format, TableDefinition& table) {
    const std::size_t columnCount = content.u16(format.columnCountAt);
    const std::size_t indexCount = content.u32(format.realIndexesAt);
    if (columnCount > kMaxColumns)
        return "annonce trop de colonnes";
    if (indexCount > kMaxIndexes)
        return "annonce trop d’index";
    const std::size_t blocksAt = format.arraysAt + indexCount * format.realIndexEntry;
    if (!content.has(blocksAt, columnCount * format.columnBlock))
        return "s’arrête dans la liste des colonnes";

    std::size_t nameAt = blocksAt + columnCount * format.columnBlock;
    for (std::size_t i = 0; i < columnCount; ++i) {
        const Bytes block = content.part(blocksAt + i * format.columnBlock, format.columnBlock);
        Column column = readColumn(block, format);
        auto name = takeName(content, nameAt, format);
        if (!name)
            return "a un nom de colonne qui n’y tient pas";
        column.name = std::move(*name);
        table.places.push_back(readPlace(block, column.type, format));
        table.columns.push_back(std::move(column));
    }
    const Bytes rest = content.from(nameAt);
    table.rest.assign(rest.data(), rest.data() + rest.size());
    return nullptr;
}

} // namespace

std::size_t fixedSizeOf(ColumnType type) {
    switch (type) {
    case ColumnType::Byte:
        return 1;
    case ColumnType::Integer:
        return 2;
    case ColumnType::Long:
    case ColumnType::Single:
        return 4;
    case ColumnType::Currency:
    case ColumnType::Double:
    case ColumnType::DateTime:
        return 8;
    case ColumnType::Guid:
        return 16;
    case ColumnType::Decimal:
        return 17;
    default:
        return 0;
    }
}

Result<TableDefinition> readTableDefinition(PageSource& source, std::uint32_t page) {
    const Format& format = source.format();
    auto collected = collectPages(source, page);
    if (!collected)
        return collected.error();
    const Bytes content(*collected);
    if (content.size() < format.arraysAt)
        return damaged(page, "est plus courte que son en-tête");

    TableDefinition table;
    table.page = page;
    table.shape = {&format, content.u16(format.maxColumnsAt),
                   content.u16(format.variableColumnsAt) > 0};
    table.rowCount = content.u32(format.rowCountAt);
    table.variableColumns = content.u16(format.variableColumnsAt);
    table.realIndexes = content.u32(format.realIndexesAt);
    table.logicalIndexes = content.u32(format.logicalIndexesAt);
    table.ownedPages = RowPointer(content.u32(format.ownedMapAt));
    table.pagesWithRoom = RowPointer(content.u32(format.roomMapAt));
    if (const char* fault = readColumns(content, format, table))
        return damaged(page, fault);
    sortByNumber(table);
    return table;
}

} // namespace jet
