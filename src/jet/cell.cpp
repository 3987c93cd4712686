#include "jet/cell.h"

#include "jet/table_definition.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <type_traits>

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

template <class Number>
Binary littleEndian(Number number) {
    using Bits = std::conditional_t<sizeof(Number) == 8, std::uint64_t, std::uint32_t>;
    Bits bits;
    if constexpr (std::is_floating_point_v<Number>)
        bits = std::bit_cast<Bits>(number);
    else
        bits = static_cast<Bits>(number);
    Binary bytes;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes.push_back(static_cast<std::uint8_t>(bits >> (8 * i)));
    return bytes;
}

template <class Integer>
std::optional<Binary> encodeInteger(const Value& value) {
    const auto number = value.integer();
    if (!number || value.as<bool>() || *number < std::numeric_limits<Integer>::min() ||
        *number > std::numeric_limits<Integer>::max())
        return std::nullopt;
    return littleEndian(static_cast<Integer>(*number));
}

std::optional<Binary> encodeCurrency(const Value& value) {
    if (const auto* currency = value.as<Currency>())
        return littleEndian(currency->tenThousandths);
    if (const auto number = value.integer(); number && !value.as<bool>())
        return littleEndian(std::int64_t{*number} * 10000);
    return std::nullopt;
}

std::optional<Binary> encodeDouble(const Value& value) {
    if (!value.as<double>() && !value.as<float>() && !value.integer())
        return std::nullopt;
    return value.as<bool>() ? std::nullopt : std::optional(littleEndian(*value.number()));
}

/// A Single takes its own type and the whole numbers it holds exactly.
std::optional<Binary> encodeSingle(const Value& value) {
    if (const auto* single = value.as<float>())
        return littleEndian(*single);
    const auto number = value.integer();
    if (!number || value.as<bool>() || std::abs(std::int64_t{*number}) > 1 << 24)
        return std::nullopt;
    return littleEndian(static_cast<float>(*number));
}

std::optional<Binary> encodeDecimal(const Value& value, const Column& column) {
    const auto* decimal = value.as<Decimal>();
    if (!decimal || decimal->scale != column.scale)
        return std::nullopt;
    Binary bytes{decimal->negative ? kNegativeDecimal : std::uint8_t{0}};
    for (const std::uint32_t word : decimal->magnitude) {
        const Binary part = littleEndian(word);
        bytes.insert(bytes.end(), part.begin(), part.end());
    }
    return bytes;
}

std::optional<Binary> encodeBinary(const Value& value, const Column& column) {
    const auto* bytes = value.as<Binary>();
    if (!bytes || bytes->size() > static_cast<std::size_t>(column.length))
        return std::nullopt;
    return *bytes;
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

std::optional<Binary> encodeCell(const Value& value, const Column& column) {
    switch (column.type) {
    case ColumnType::Byte:
        return encodeInteger<std::uint8_t>(value);
    case ColumnType::Integer:
        return encodeInteger<std::int16_t>(value);
    case ColumnType::Long:
        return encodeInteger<std::int32_t>(value);
    case ColumnType::Currency:
        return encodeCurrency(value);
    case ColumnType::Single:
        return encodeSingle(value);
    case ColumnType::Double:
        return encodeDouble(value);
    case ColumnType::DateTime:
        if (const auto* date = value.as<DateTime>())
            return littleEndian(date->days);
        return std::nullopt;
    case ColumnType::Guid:
        if (const auto* guid = value.as<Guid>())
            return Binary(guid->bytes.begin(), guid->bytes.end());
        return std::nullopt;
    case ColumnType::Decimal:
        return encodeDecimal(value, column);
    case ColumnType::Binary:
        return encodeBinary(value, column);
    default:
        return std::nullopt;
    }
}

} // namespace jet
