#pragma once

#include <cstdint>
#include <string>

namespace jet {

/// The numbers are those of the file.
enum class ColumnType : std::uint8_t {
    Unknown = 0, ///< a type of none of these numbers, read as Binary, never written
    Boolean = 1,
    Byte = 2,
    Integer = 3, ///< 16 bits
    Long = 4,    ///< 32 bits
    Currency = 5,
    Single = 6,
    Double = 7,
    DateTime = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Decimal = 16,
    FixedBinary = 17 ///< of system tables, read as Binary, never written
};

/// A column as its table declares it.
struct Column {
    std::u16string name;
    ColumnType type = ColumnType::Unknown;
    /// Text: characters, 1 to 255. Binary: bytes, 1 to 255. Not used when writing other types; when
    /// read, the bytes the file declares for them (0 for Memo and OLE).
    int length = 0;
    bool fixedLength = false; ///< Text that always fills its length; follows the type for others
    bool autoNumber = false;
    bool compressible = true; ///< Text and Memo: may be stored in the compressed form
    int precision = 18;       ///< Decimal: digits, 1 to 28
    int scale = 0;            ///< Decimal: digits after the point, 0 to precision
};

/// Shown types: "Long", "Memo"...
const char* typeName(ColumnType type);

} // namespace jet
