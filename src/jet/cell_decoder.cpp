#include "jet/cell_decoder.h"

#include "jet/table_definition.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace jet {

namespace {

constexpr std::uint8_t kNegativeDecimal = 0x80;

Guid decodeGuid(Bytes bytes) {
    Guid guid;
    std::copy_n(bytes.data(), guid.bytes.size(), guid.bytes.begin());
    return guid;
}

Decimal decodeDecimal(Bytes bytes, int scale) {
    Decimal decimal;
    decimal.negative = bytes.u8(0) == kNegativeDecimal;
    for (std::size_t i = 0; i < decimal.magnitude.size(); ++i)
        decimal.magnitude[i] = bytes.u32(1 + 4 * i);
    decimal.scale = static_cast<std::uint8_t>(scale);
    return decimal;
}

} // namespace

Value decodeCell(Bytes bytes, const Column& column) {
    if (bytes.size() < fixedSizeOf(column.type))
        return {};
    switch (column.type) {
    case ColumnType::Byte:
        return bytes.u8(0);
    case ColumnType::Integer:
        return static_cast<std::int16_t>(bytes.u16(0));
    case ColumnType::Long:
        return static_cast<std::int32_t>(bytes.u32(0));
    case ColumnType::Currency:
        return Currency{static_cast<std::int64_t>(bytes.u64(0))};
    case ColumnType::Single:
        return bytes.f32(0);
    case ColumnType::Double:
        return bytes.f64(0);
    case ColumnType::DateTime:
        return DateTime{bytes.f64(0)};
    case ColumnType::Guid:
        return decodeGuid(bytes);
    case ColumnType::Decimal:
        return decodeDecimal(bytes, column.scale);
    default:
        return Binary(bytes.data(), bytes.data() + bytes.size());
    }
}

} // namespace jet
