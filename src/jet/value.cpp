#include "jet/value.h"

#include <cmath>

namespace jet {

std::optional<std::int32_t> Value::integer() const {
    if (const auto* boolean = as<bool>())
        return *boolean ? -1 : 0;
    if (const auto* byte = as<std::uint8_t>())
        return *byte;
    if (const auto* integer = as<std::int16_t>())
        return *integer;
    if (const auto* whole = as<std::int32_t>())
        return *whole;
    return std::nullopt;
}

namespace {

double toDouble(const Decimal& decimal) {
    double magnitude = 0;
    for (const std::uint32_t word : decimal.magnitude)
        magnitude = magnitude * 4294967296.0 + word;
    const double value = magnitude / std::pow(10.0, decimal.scale);
    return decimal.negative ? -value : value;
}

} // namespace

std::optional<double> Value::number() const {
    if (const auto whole = integer())
        return *whole;
    if (const auto* currency = as<Currency>())
        return static_cast<double>(currency->tenThousandths) / 10000;
    if (const auto* single = as<float>())
        return *single;
    if (const auto* real = as<double>())
        return *real;
    if (const auto* date = as<DateTime>())
        return date->days;
    if (const auto* decimal = as<Decimal>())
        return toDouble(*decimal);
    return std::nullopt;
}

} // namespace jet
