#include "jet/cell_encoder.h"

#include "jet/text_codec.h"
#include "jet/value_text.h"

#include <bit>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace jet {

namespace {

constexpr std::uint8_t kNegativeDecimal = 0x80;
constexpr const char* kOtherType = "la valeur n’est pas du type de la colonne";
constexpr const char* kTooLong = "la valeur est plus longue que la colonne";
constexpr const char* kTooLarge = "le nombre est trop grand pour la colonne";

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

/// A whole number of any width; a Boolean is none.
std::optional<std::int32_t> integerValue(const Value& value) {
    return value.as<bool>() ? std::nullopt : value.integer();
}

template <class Integer>
EncodedCell encodeInteger(const Value& value) {
    const auto number = integerValue(value);
    if (!number)
        return kOtherType;
    if (*number < std::numeric_limits<Integer>::min() ||
        *number > std::numeric_limits<Integer>::max())
        return kTooLarge;
    return littleEndian(static_cast<Integer>(*number));
}

EncodedCell encodeCurrency(const Value& value) {
    if (const auto* currency = value.as<Currency>())
        return littleEndian(currency->tenThousandths);
    if (const auto number = integerValue(value))
        return littleEndian(std::int64_t{*number} * 10000);
    return kOtherType;
}

EncodedCell encodeDouble(const Value& value) {
    if (!value.as<double>() && !value.as<float>() && !integerValue(value))
        return kOtherType;
    return littleEndian(*value.number());
}

/// A Single takes its own type and the whole numbers it holds exactly.
EncodedCell encodeSingle(const Value& value) {
    if (const auto* single = value.as<float>())
        return littleEndian(*single);
    const auto number = integerValue(value);
    if (!number)
        return kOtherType;
    if (std::abs(std::int64_t{*number}) > 1 << std::numeric_limits<float>::digits)
        return kTooLarge;
    return littleEndian(static_cast<float>(*number));
}

EncodedCell encodeDate(const Value& value) {
    const auto* date = value.as<DateTime>();
    return date ? EncodedCell(littleEndian(date->days)) : kOtherType;
}

EncodedCell encodeGuid(const Value& value) {
    const auto* guid = value.as<Guid>();
    return guid ? EncodedCell(Binary(guid->bytes.begin(), guid->bytes.end())) : kOtherType;
}

EncodedCell encodeDecimal(const Value& value, const Column& column) {
    const auto* decimal = value.as<Decimal>();
    if (!decimal || decimal->scale != column.scale)
        return kOtherType;
    const std::string digits = toText(Decimal{false, decimal->magnitude, 0});
    if (digits.size() > static_cast<std::size_t>(column.precision))
        return kTooLarge;
    Binary bytes{decimal->negative ? kNegativeDecimal : std::uint8_t{0}};
    for (const std::uint32_t word : decimal->magnitude) {
        const Binary part = littleEndian(word);
        bytes.insert(bytes.end(), part.begin(), part.end());
    }
    return bytes;
}

EncodedCell encodeBytes(const Value& value, std::size_t longest) {
    const auto* bytes = value.as<Binary>();
    if (!bytes)
        return kOtherType;
    return bytes->size() <= longest ? EncodedCell(*bytes) : kTooLong;
}

EncodedCell encodeCharacters(const Value& value, std::size_t longest, const Column& column,
                             const Format& format) {
    const std::u16string* text = value.text();
    if (!text)
        return kOtherType;
    if (text->size() > longest)
        return kTooLong;
    const bool fills = column.type == ColumnType::Text && column.fixedLength;
    std::u16string padded;
    if (fills) {
        padded = *text;
        padded.resize(longest, u' ');
    }
    const std::u16string& stored = fills ? padded : *text;
    if (!format.wideText) {
        auto bytes = encodeWindows1252(stored);
        return bytes ? EncodedCell(std::move(*bytes))
                     : "le texte a un caractère que la page de code 1252 n’a pas";
    }
    auto bytes = encodeText(stored, column.compressible && !fills);
    return bytes ? EncodedCell(std::move(*bytes)) : "le texte commence par U+FEFF";
}

} // namespace

EncodedCell encodeCell(const Value& value, const Column& column, const Format& format) {
    const auto declared = static_cast<std::size_t>(column.length);
    switch (column.type) {
    case ColumnType::Boolean:
        return value.as<bool>() ? EncodedCell(Binary()) : kOtherType;
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
        return encodeDate(value);
    case ColumnType::Guid:
        return encodeGuid(value);
    case ColumnType::Decimal:
        return encodeDecimal(value, column);
    case ColumnType::Binary:
        return encodeBytes(value, declared);
    case ColumnType::Ole:
        return encodeBytes(value, kLongValueLengthMask);
    case ColumnType::Text:
        return encodeCharacters(value, declared, column, format);
    case ColumnType::Memo:
        return encodeCharacters(value, kLongValueLengthMask / 2, column, format);
    case ColumnType::Unknown:
    case ColumnType::FixedBinary:
        break;
    }
    return kOtherType;
}

} // namespace jet
