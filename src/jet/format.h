#pragma once

#include <cstddef>
#include <cstdint>

namespace jet {

/// What differs between the two generations of the format, as offsets and sizes in bytes. Taken
/// from docs/jet-format.md. Structures that are the same in both have their constants below.
struct Format {
    std::size_t pageSize;
    bool wideText; ///< UTF-16 with a compressed form; otherwise one byte a character

    // Data page
    std::size_t slotCountAt;
    std::size_t slotsAt;

    // Row: size of the column count, of n, of the variable offsets
    std::size_t rowNumber;

    // Table definition, first page
    std::size_t rowCountAt;
    std::size_t maxColumnsAt;
    std::size_t variableColumnsAt;
    std::size_t columnCountAt;
    std::size_t logicalIndexesAt;
    std::size_t realIndexesAt;
    std::size_t ownedMapAt;
    std::size_t roomMapAt;
    std::size_t arraysAt;
    std::size_t realIndexEntry; ///< size of one entry of the first array

    // Column block
    std::size_t columnBlock; ///< its size
    std::size_t columnNumberAt;
    std::size_t variableIndexAt;
    std::size_t decimalDigitsAt; ///< precision, then scale
    std::size_t columnFlagsAt;
    std::size_t compressionAt; ///< 0: there is none
    std::size_t fixedOffsetAt;
    std::size_t columnLengthAt;
    std::size_t nameLength; ///< size of the length in front of a name

    // Indexes, behind the column names
    std::size_t realIndexBlock;
    std::size_t indexColumnsAt; ///< within the block
    std::size_t logicalIndexBlock;

    // The engine's own bounds, below what a page and a pointer could hold
    std::size_t longestRow;
    std::size_t longestSingle; ///< long value in one record
    std::size_t longestPiece;  ///< of a chain, besides its pointer
    std::uint32_t maxPages;    ///< 1 GB, 2 GB
};

inline constexpr Format kJet3{.pageSize = 2048,
                              .wideText = false,
                              .slotCountAt = 8,
                              .slotsAt = 10,
                              .rowNumber = 1,
                              .rowCountAt = 12,
                              .maxColumnsAt = 21,
                              .variableColumnsAt = 23,
                              .columnCountAt = 25,
                              .logicalIndexesAt = 27,
                              .realIndexesAt = 31,
                              .ownedMapAt = 35,
                              .roomMapAt = 39,
                              .arraysAt = 43,
                              .realIndexEntry = 8,
                              .columnBlock = 18,
                              .columnNumberAt = 1,
                              .variableIndexAt = 3,
                              .decimalDigitsAt = 9,
                              .columnFlagsAt = 13,
                              .compressionAt = 0,
                              .fixedOffsetAt = 14,
                              .columnLengthAt = 16,
                              .nameLength = 1,
                              .realIndexBlock = 39,
                              .indexColumnsAt = 0,
                              .logicalIndexBlock = 20,
                              .longestRow = 2012,
                              .longestSingle = 2032,
                              .longestPiece = 2032,
                              .maxPages = 0x3FFFFFFF / 2048};

inline constexpr Format kJet4{.pageSize = 4096,
                              .wideText = true,
                              .slotCountAt = 12,
                              .slotsAt = 14,
                              .rowNumber = 2,
                              .rowCountAt = 16,
                              .maxColumnsAt = 41,
                              .variableColumnsAt = 43,
                              .columnCountAt = 45,
                              .logicalIndexesAt = 47,
                              .realIndexesAt = 51,
                              .ownedMapAt = 55,
                              .roomMapAt = 59,
                              .arraysAt = 63,
                              .realIndexEntry = 12,
                              .columnBlock = 25,
                              .columnNumberAt = 5,
                              .variableIndexAt = 7,
                              .decimalDigitsAt = 11,
                              .columnFlagsAt = 15,
                              .compressionAt = 16,
                              .fixedOffsetAt = 21,
                              .columnLengthAt = 23,
                              .nameLength = 2,
                              .realIndexBlock = 52,
                              .indexColumnsAt = 4,
                              .logicalIndexBlock = 28,
                              .longestRow = 4060,
                              .longestSingle = 4076,
                              .longestPiece = 4072,
                              .maxPages = 0x7FFFFFFF / 4096};

/// First byte of a page.
enum class PageType : std::uint8_t {
    Data = 1,
    Definition = 2,
    InnerIndex = 3,
    LeafIndex = 4,
    UsageBitmap = 5
};

/// Owner, in the header of a data page, of the pages that hold Memo and OLE values: "LVAL".
inline constexpr std::uint32_t kLongValueOwner = 0x4C41564C;
inline constexpr std::size_t kPageOwnerAt = 4;

/// Definition page of the catalog table, in every file.
inline constexpr std::uint32_t kCatalogPage = 2;

/// The engine's own limits; a file that goes beyond them is damaged.
inline constexpr std::size_t kMaxColumns = 255;
inline constexpr std::size_t kMaxIndexes = 32;
/// Row numbers are one byte in a pointer.
inline constexpr std::size_t kMaxSlots = 255;

/// Flags of a slot of a data page; the rest of its 16 bits is the offset of the row.
inline constexpr std::uint16_t kSlotOffsetMask = 0x1FFF;
inline constexpr std::uint16_t kSlotPointer = 0x4000;
inline constexpr std::uint16_t kSlotBody = 0x8000;
inline constexpr std::uint16_t kSlotDeleted = 0xC000;

/// What a slot with kSlotPointer holds.
inline constexpr std::size_t kPointerBytes = 4;

/// Flags of a column.
inline constexpr std::uint8_t kColumnFixed = 0x01;
inline constexpr std::uint8_t kColumnUpdatable = 0x02;
inline constexpr std::uint8_t kColumnAutoNumber = 0x04;

/// Free bytes, in the header of a data page.
inline constexpr std::size_t kFreeBytesAt = 2;

/// Header in front of a Memo or OLE value: length and kind, pointer, four bytes of no known use.
inline constexpr std::size_t kLongValueHeader = 12;
inline constexpr std::uint32_t kLongValueLengthMask = 0x3FFFFFFF;
inline constexpr unsigned kLongValueKindShift = 30;
inline constexpr std::size_t kLongValuePointerAt = 4;
/// Longest value that stays in its row.
inline constexpr std::size_t kLongestInline = 64;
enum class LongValueKind : std::uint8_t { Chain = 0, Single = 1, Inline = 2 };

/// Pointer in front of each piece of a chain; 0 in the last one.
inline constexpr std::size_t kNextPieceBytes = 4;

/// Row of a usage map: its kind, then the first page and a bit for each page from there on, or the
/// numbers of bitmap pages.
inline constexpr std::uint8_t kInlineMap = 0;
inline constexpr std::uint8_t kMapByReference = 1;
inline constexpr std::size_t kMapFirstPageAt = 1;
inline constexpr std::size_t kMapBitsAt = 5;
inline constexpr std::size_t kMapReferencesAt = 1;
/// Bits of a bitmap page, behind its type.
inline constexpr std::size_t kBitmapAt = 4;
/// Owner that pages with usage maps name; the one with the map of free pages names 1.
inline constexpr std::uint32_t kMapOwner = 0;
inline constexpr std::uint32_t kGlobalMapOwner = 1;

/// Where a row lies: the page in the upper 24 bits, the slot in the lower 8.
struct RowPointer {
    std::uint32_t page = 0;
    std::uint8_t row = 0;

    constexpr RowPointer() = default;
    constexpr RowPointer(std::uint32_t pageNumber, std::uint8_t rowNumber)
        : page(pageNumber), row(rowNumber) {}
    constexpr explicit RowPointer(std::uint32_t stored)
        : page(stored >> 8), row(static_cast<std::uint8_t>(stored & 0xFF)) {}
    constexpr std::uint32_t stored() const { return page << 8 | row; }
    constexpr bool operator==(const RowPointer&) const = default;
};

/// The map of the pages that are free, in every file.
inline constexpr RowPointer kGlobalMap{1, 0};

/// Maps of the pages of a table or of one of its Memo and OLE columns.
struct PageMaps {
    RowPointer owned;
    RowPointer withRoom;
};

} // namespace jet
