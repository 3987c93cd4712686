#include "page/faces/face_file.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <utility>
#include <vector>

namespace page {

namespace {

// https://learn.microsoft.com/typography/opentype/spec/otff: a header of 12 bytes, a directory
// with 16 bytes a table, the tables at multiples of 4.
constexpr qsizetype kHeaderBytes = 12;
constexpr qsizetype kEntryBytes = 16;
constexpr quint32 kTrueType = 0x00010000;
constexpr quint32 kCompact = 0x4F54544F; // "OTTO"

/// In the order of the directory, which goes by tag. What shapes and kerns is left out.
constexpr const char* kTables[] = {"CFF ", "OS/2", "cmap", "cvt ", "fpgm", "glyf", "head",
                                   "hhea", "hmtx", "loca", "maxp", "name", "post", "prep"};

template <class Number>
void append(QByteArray& bytes, Number number) {
    const Number ordered = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char*>(&ordered), sizeof ordered);
}

} // namespace

QByteArray faceFile(const QRawFont& font) {
    std::vector<std::pair<const char*, QByteArray>> tables;
    bool compact = false;
    for (const char* tag : kTables) {
        QByteArray table = font.isValid() ? font.fontTable(tag) : QByteArray();
        if (table.isEmpty())
            continue;
        compact = compact || tag == kTables[0];
        tables.emplace_back(tag, std::move(table));
    }
    if (tables.empty())
        return {};

    const auto count = static_cast<quint16>(tables.size());
    const auto floor = std::bit_floor(count);
    QByteArray file;
    append(file, compact ? kCompact : kTrueType);
    // What a binary search of the directory starts with.
    append(file, count);
    append(file, static_cast<quint16>(floor * kEntryBytes));
    append(file, static_cast<quint16>(std::countr_zero(floor)));
    append(file, static_cast<quint16>((count - floor) * kEntryBytes));
    qsizetype offset = kHeaderBytes + count * kEntryBytes;
    const auto padded = [](qsizetype size) { return (size + 3) & ~qsizetype{3}; };
    for (const auto& [tag, table] : tables) {
        file.append(tag, 4);
        append(file, quint32{0}); // the checksum, which readers of a face in memory leave alone
        append(file, static_cast<quint32>(offset));
        append(file, static_cast<quint32>(table.size()));
        offset += padded(table.size());
    }
    file.reserve(offset);
    for (const auto& [tag, table] : tables) {
        file.append(table);
        file.append(padded(table.size()) - table.size(), '\0');
    }
    return file;
}

} // namespace page
