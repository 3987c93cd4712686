#include "jet/definition_encoder.h"

#include "jet/byte_writer.h"

#include <algorithm>

namespace jet {

namespace {

// Constant words the engine writes in front of the parts of a definition.
constexpr std::uint32_t kPartWord = 0x659;
constexpr std::uint32_t kIndexWord = 0x783;
constexpr std::size_t kGeneralSortOrder = 0x0409;
constexpr std::size_t kIndexColumns = 10;
constexpr std::size_t kNone = 0xFFFF;
constexpr std::size_t kPageHeader = 8;
constexpr std::size_t kNextPageAt = 4;
constexpr std::size_t kLengthAt = 8;

bool hasOwnPages(ColumnType type) {
    return type == ColumnType::Memo || type == ColumnType::Ole;
}

bool isCharacters(ColumnType type) {
    return type == ColumnType::Memo || type == ColumnType::Text;
}

std::size_t storedLength(const Column& column) {
    switch (column.type) {
    case ColumnType::Boolean:
        return 1;
    case ColumnType::Text:
        return 2 * static_cast<std::size_t>(column.length);
    case ColumnType::Binary:
        return static_cast<std::size_t>(column.length);
    default:
        return fixedSizeOf(column.type);
    }
}

void encodeHead(const NewDefinition& table, ByteWriter& out) {
    out.u8(static_cast<std::size_t>(PageType::Definition));
    out.u8(1);
    out.zeros(2 + 4 + 4); // free bytes, next page and length: known when the pages are written
    out.u32(kPartWord);
    out.u32(table.rowCount);
    out.u32(table.lastAutoNumber);
    out.u8(1); // automatic numbers work
    out.zeros(15);
    out.u8(table.system ? 'S' : 'N');
    out.u16(table.columns.size());
    out.u16(static_cast<std::size_t>(
        std::count_if(table.places.begin(), table.places.end(),
                      [](const ColumnPlace& place) { return !place.fixed; })));
    out.u16(table.columns.size());
    out.u32(table.logicalIndexes.size());
    out.u32(table.realIndexes.size());
    out.u32(table.maps.owned.stored());
    out.u32(table.maps.withRoom.stored());
}

void encodeColumn(const NewDefinition& table, std::size_t i, ByteWriter& out) {
    const Column& column = table.columns[i];
    const ColumnPlace& place = table.places[i];
    out.u8(static_cast<std::size_t>(column.type));
    out.u32(kPartWord);
    out.u16(place.number);
    out.u16(place.variableIndex);
    out.u16(table.system ? 0 : i);
    if (column.type == ColumnType::Decimal) {
        out.u8(static_cast<std::size_t>(column.precision));
        out.u8(static_cast<std::size_t>(column.scale));
    } else {
        out.u16(kGeneralSortOrder);
    }
    out.u16(0);
    out.u8(table.flags[i]);
    out.u8(isCharacters(column.type) && column.compressible && !column.fixedLength ? 1 : 0);
    out.u32(0);
    out.u16(place.fixedOffset);
    out.u16(storedLength(column));
}

void encodeName(std::u16string_view name, ByteWriter& out) {
    out.u16(2 * name.size());
    out.utf16(name);
}

void encodeRealIndex(const RealIndex& index, ByteWriter& out) {
    out.u32(kIndexWord);
    for (std::size_t i = 0; i < kIndexColumns; ++i) {
        const bool used = i < index.columns.size();
        out.u16(used ? index.columns[i] : kNone);
        out.u8(used ? 1 : 0); // ascending
    }
    out.u32(index.map.stored());
    out.u32(index.root);
    out.u32(0);
    out.u8(index.flags);
    out.zeros(5);
}

void encodeLogicalIndex(const LogicalIndex& index, ByteWriter& out) {
    out.u32(kPartWord);
    out.u32(index.number);
    out.u32(index.number);
    out.u8(0);
    out.u32(0xFFFFFFFF); // no index of another table
    out.u32(0);
    out.u8(4);
    out.u8(4);
    out.u8(index.primaryKey ? 1 : 0);
    out.u32(0);
}

void encodeColumnMaps(const NewDefinition& table, ByteWriter& out) {
    for (const std::size_t i : table.listingOrder) {
        if (!hasOwnPages(table.columns[i].type))
            continue;
        out.u16(table.places[i].number);
        out.u32(table.columnMaps[i].owned.stored());
        out.u32(table.columnMaps[i].withRoom.stored());
    }
    out.u16(kNone);
}

} // namespace

std::vector<std::uint8_t> encodeDefinition(const NewDefinition& table) {
    ByteWriter out;
    encodeHead(table, out);
    for (const RealIndex& index : table.realIndexes) {
        out.u32(0);
        out.u32(index.differentKeys);
        out.u32(0);
    }
    for (const std::size_t i : table.listingOrder)
        encodeColumn(table, i, out);
    for (const std::size_t i : table.listingOrder)
        encodeName(table.columns[i].name, out);
    for (const RealIndex& index : table.realIndexes)
        encodeRealIndex(index, out);
    for (const LogicalIndex& index : table.logicalIndexes)
        encodeLogicalIndex(index, out);
    for (const LogicalIndex& index : table.logicalIndexes)
        encodeName(index.name, out);
    encodeColumnMaps(table, out);
    return out.written();
}

std::size_t definitionPageCount(std::size_t contentBytes) {
    const std::size_t perPage = kJet4.pageSize - kPageHeader;
    return (contentBytes - kPageHeader + perPage - 1) / perPage;
}

void writeDefinition(std::vector<std::uint8_t> content, const std::vector<std::uint32_t>& pages,
                     OutputFile& file) {
    const std::size_t perPage = kJet4.pageSize - kPageHeader;
    put32(content, kLengthAt, content.size());
    const Bytes body = Bytes(content).from(kPageHeader);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const Bytes part = body.from(i * perPage).first(perPage);
        const std::size_t used = part.size() + kPageHeader;
        PageImage image(kJet4.pageSize);
        image[0] = static_cast<std::uint8_t>(PageType::Definition);
        image[1] = 1;
        put16(image, kFreeBytesAt, used < perPage ? perPage - used : 0);
        put32(image, kNextPageAt, i + 1 < pages.size() ? pages[i + 1] : 0);
        putBytes(image, kPageHeader, part);
        file.write(pages[i], image);
    }
}

} // namespace jet
