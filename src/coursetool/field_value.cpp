#include "coursetool/field_value.h"

#include "coursetool/report.h"
#include "coursetool/toml_text.h"
#include "text/utf8.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace coursetool {

namespace {

template <class Number>
NumberRange rangeOf() {
    return {std::numeric_limits<Number>::lowest(), std::numeric_limits<Number>::max()};
}

FieldResult refuse(const FieldRule& rule, std::string_view expected, std::string_view instead) {
    return {{},
            inQuotes(rule.name) + " attend " + std::string(expected) + " : écrire par exemple " +
                inQuotes(std::string(rule.name) + " = " + std::string(instead))};
}

/// The number that the author probably meant.
std::optional<std::int64_t> meantNumber(const SourceValue& given) {
    if (const auto* text = std::get_if<std::string>(&given))
        return canonicalNumber(*text);
    const auto* number = std::get_if<double>(&given);
    if (number && std::abs(*number) < 1e9)
        return static_cast<std::int64_t>(std::llround(*number));
    return std::nullopt;
}

FieldResult toNumber(const FieldRule& rule, const SourceValue& given) {
    const auto* number = std::get_if<std::int64_t>(&given);
    if (!number) {
        const auto meant = meantNumber(given);
        return refuse(rule, "un nombre entier",
                      meant ? std::to_string(*meant) : std::string(rule.example));
    }
    const NumberRange range = numberRange(rule.type);
    if (*number < range.lowest || *number > range.highest)
        return {{},
                inQuotes(rule.name) + " va de " + std::to_string(range.lowest) + " à " +
                    std::to_string(range.highest)};
    if (rule.type == jet::ColumnType::Integer)
        return {static_cast<std::int16_t>(*number), {}};
    return {static_cast<std::int32_t>(*number), {}};
}

FieldResult toFlag(const FieldRule& rule, const SourceValue& given) {
    if (const bool* flag = std::get_if<bool>(&given))
        return {*flag, {}};
    const auto* number = std::get_if<std::int64_t>(&given);
    return refuse(rule, "true ou false", number && *number == 0 ? "false" : "true");
}

FieldResult toText(const FieldRule& rule, const SourceValue& given) {
    const auto* text = std::get_if<std::string>(&given);
    if (!text) {
        const auto* number = std::get_if<std::int64_t>(&given);
        return refuse(rule, "un texte entre guillemets",
                      number ? tomlString(std::to_string(*number)) : std::string(rule.example));
    }
    std::u16string units = text::toUtf16(*text);
    if (units.size() > kMaxTextLength)
        return {{},
                inQuotes(rule.name) + " a " + std::to_string(units.size()) +
                    " caractères : en garder 255 au plus"};
    return {std::move(units), {}};
}

} // namespace

FieldResult toField(const FieldRule& rule, const SourceValue& given) {
    switch (rule.type) {
    case jet::ColumnType::Boolean:
        return toFlag(rule, given);
    case jet::ColumnType::Text:
        return toText(rule, given);
    default:
        return toNumber(rule, given);
    }
}

NumberRange numberRange(jet::ColumnType type) {
    return type == jet::ColumnType::Integer ? rangeOf<std::int16_t>() : rangeOf<std::int32_t>();
}

std::optional<std::int64_t> canonicalNumber(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || std::to_string(number) != text)
        return std::nullopt;
    return number;
}

} // namespace coursetool
