#include "jet/table_tail.h"

#include "jet/bytes.h"

#include <string>

namespace jet {

namespace {

constexpr std::size_t kIndexColumns = 10;
constexpr std::size_t kIndexColumnBytes = 3; ///< number, then the order
constexpr std::size_t kNone = 0xFFFF;
constexpr std::size_t kColumnMapBytes = 10;
/// The engine's bound; several logical indexes may share a real one.
constexpr std::size_t kMaxLogicalIndexes = 255;

void addIndexColumns(Bytes block, const Format& format, std::set<std::size_t>& columns) {
    for (std::size_t i = 0; i < kIndexColumns; ++i) {
        const std::size_t number = block.u16(format.indexColumnsAt + kIndexColumnBytes * i);
        if (number != kNone)
            columns.insert(number);
    }
}

/// Goes behind the names of the logical indexes; false when they do not fit.
bool skipNames(Bytes rest, std::size_t& at, std::size_t count, const Format& format) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t length = format.nameLength == 1 ? std::size_t{rest.u8(at)} : rest.u16(at);
        at += format.nameLength + length;
        if (at > rest.size())
            return false;
    }
    return true;
}

} // namespace

Result<TableTail> readTableTail(const TableDefinition& definition) {
    const Format& format = *definition.shape.format;
    const Bytes rest(definition.rest);
    const Failure damaged{Failure::Kind::Damaged, "la définition (page " +
                                                      std::to_string(definition.page) +
                                                      ") a une liste d’index qui n’y tient pas"};
    const std::size_t realBytes = definition.realIndexes * format.realIndexBlock;
    if (definition.logicalIndexes > kMaxLogicalIndexes ||
        !rest.has(realBytes, definition.logicalIndexes * format.logicalIndexBlock))
        return damaged;

    TableTail tail;
    for (std::size_t i = 0; i < definition.realIndexes; ++i)
        addIndexColumns(rest.part(i * format.realIndexBlock, format.realIndexBlock), format,
                        tail.indexedColumns);
    std::size_t at = realBytes + definition.logicalIndexes * format.logicalIndexBlock;
    if (!skipNames(rest, at, definition.logicalIndexes, format))
        return damaged;
    for (; rest.has(at, kColumnMapBytes) && rest.u16(at) != kNone; at += kColumnMapBytes)
        tail.longColumns.try_emplace(
            rest.u16(at), PageMaps{RowPointer(rest.u32(at + 2)), RowPointer(rest.u32(at + 6))});
    return tail;
}

} // namespace jet
