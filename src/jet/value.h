#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace jet {

/// Amount in ten-thousandths.
struct Currency {
    std::int64_t tenThousandths = 0;
    bool operator==(const Currency&) const = default;
};

/// Days since 30 December 1899; the fraction is the time of day, counted forward even when the
/// number is negative. Any double can be stored, so it may lie outside the calendar or be no
/// number.
struct DateTime {
    double days = 0;
    bool operator==(const DateTime&) const = default;
};

/// The sixteen bytes as stored: one u32, two u16 (little-endian), eight single bytes.
struct Guid {
    std::array<std::uint8_t, 16> bytes{};
    bool operator==(const Guid&) const = default;
};

/// A whole number of 128 bits (most significant word first), `scale` of its decimals after the
/// point; the scale is the column's.
struct Decimal {
    bool negative = false;
    std::array<std::uint32_t, 4> magnitude{};
    std::uint8_t scale = 0;
    bool operator==(const Decimal&) const = default;
};

using Binary = std::vector<std::uint8_t>;

/// What a cell holds. Each column type has its own alternative, so that a value tells how it is to
/// be shown: Boolean bool, Byte uint8_t, Integer int16_t, Long int32_t, Single float, Double
/// double, Text and Memo std::u16string, Binary and OLE (and types unknown here) Binary.
class Value {
public:
    using Content =
        std::variant<std::monostate, bool, std::uint8_t, std::int16_t, std::int32_t, Currency,
                     float, double, DateTime, Binary, std::u16string, Guid, Decimal>;

    Value() = default; ///< NULL

    /// A value of exactly one of the types above; no conversion takes place.
    template <class T>
    requires(std::is_same_v<T, bool> || std::is_same_v<T, std::uint8_t> ||
             std::is_same_v<T, std::int16_t> || std::is_same_v<T, std::int32_t> ||
             std::is_same_v<T, Currency> || std::is_same_v<T, float> || std::is_same_v<T, double> ||
             std::is_same_v<T, DateTime> || std::is_same_v<T, Binary> ||
             std::is_same_v<T, std::u16string> || std::is_same_v<T, Guid> ||
             std::is_same_v<T, Decimal>) Value(T content)
        : content_(std::move(content)) {}
    Value(const char16_t* text) : content_(std::u16string(text)) {}

    bool isNull() const { return content_.index() == 0; }

    /// The content when it is a T, nullptr otherwise.
    template <class T>
    const T* as() const {
        return std::get_if<T>(&content_);
    }
    template <class T>
    T* as() {
        return std::get_if<T>(&content_);
    }
    const std::u16string* text() const { return as<std::u16string>(); }

    /// Boolean (True is -1), Byte, Integer or Long as a whole number; nothing for other types.
    std::optional<std::int32_t> integer() const;
    /// The same and Currency, Single, Double, DateTime, Decimal as a double.
    std::optional<double> number() const;

    const Content& content() const { return content_; }
    /// For those who fill one Value again and again and want to keep its buffer.
    Content& content() { return content_; }

    bool operator==(const Value&) const = default;

private:
    Content content_;
};

} // namespace jet
