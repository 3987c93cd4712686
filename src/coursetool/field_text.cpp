#include "coursetool/field_text.h"

#include "coursetool/field_value.h"
#include "coursetool/json_number.h"
#include "coursetool/toml_text.h"
#include "jet/value_text.h"
#include "text/utf8.h"

#include <cmath>

namespace coursetool {

namespace {

enum class Kind { Number, Flag, Text, Other };

Kind kindOf(jet::ColumnType type) {
    using enum jet::ColumnType;
    switch (type) {
    case Byte:
    case Integer:
    case Long:
    case Currency:
    case Single:
    case Double:
    case Decimal:
        return Kind::Number;
    case Boolean:
        return Kind::Flag;
    case Text:
    case Memo:
        return Kind::Text;
    default:
        return Kind::Other;
    }
}

/// Whole numbers up to here are exact in a double.
constexpr double kLargestExact = 9007199254740992.0;

FieldText numberText(const FieldRule& rule, std::int64_t number) {
    const NumberRange range = numberRange(rule.type);
    const bool fits = number >= range.lowest && number <= range.highest;
    return {std::to_string(number),
            fits ? ""
                 : "le nombre " + std::to_string(number) + " est trop grand : build le refusera"};
}

FieldText numberText(const FieldRule& rule, double number) {
    if (std::trunc(number) == number && std::abs(number) < kLargestExact)
        return numberText(rule, static_cast<std::int64_t>(number));
    std::string toml;
    appendJsonNumber(number, toml);
    if (!std::isfinite(number))
        return {std::nullopt, "la valeur " + toml + " n’est pas reprise"};
    return {toml, "le nombre " + toml + " n’est pas entier : build le refusera"};
}

FieldText textAsNumber(const FieldRule& rule, const std::u16string& text) {
    const std::string utf8 = text::toUtf8(text);
    if (const auto number = canonicalNumber(utf8))
        return numberText(rule, *number);
    return {tomlString(utf8), "le texte " + tomlString(utf8) +
                                  " n’est pas un nombre : build le "
                                  "refusera"};
}

FieldText toNumber(const FieldRule& rule, const jet::Value& value) {
    if (const auto* text = value.text())
        return textAsNumber(rule, *text);
    if (const auto whole = value.integer())
        return numberText(rule, static_cast<std::int64_t>(*whole));
    if (const auto number = value.as<jet::DateTime>() ? std::nullopt : value.number())
        return numberText(rule, *number);
    return {std::nullopt, "la valeur n’est pas un nombre, elle n’est pas reprise"};
}

FieldText toFlag(const jet::Value& value) {
    if (const bool* flag = value.as<bool>())
        return {*flag ? "true" : "false", {}};
    const auto number = value.as<jet::DateTime>() ? std::nullopt : value.number();
    if (!number)
        return {std::nullopt, "la valeur n’est ni oui ni non, elle n’est pas reprise"};
    const bool exact = *number == 0 || *number == 1 || *number == -1;
    return {*number != 0 ? "true" : "false",
            exact ? "" : "un nombre autre que 0 et -1 devient « true »"};
}

FieldText toText(const jet::Value& value) {
    const auto* text = value.text();
    if (!text) {
        const auto whole = value.integer();
        if (!whole)
            return {std::nullopt, kNoText};
        return {tomlString(std::to_string(*whole)), {}};
    }
    FieldText result{tomlString(text::toUtf8(*text)), {}};
    if (!hasOnlyCharacters(*text))
        result.complaint = kHasNoCharacters;
    else if (text->size() > kMaxTextLength)
        result.complaint = "le texte dépasse 255 caractères : build le refusera";
    return result;
}

} // namespace

FieldText toToml(const FieldRule& rule, const jet::Value& value) {
    if (value.isNull())
        return {};
    switch (rule.type) {
    case jet::ColumnType::Boolean:
        return toFlag(value);
    case jet::ColumnType::Text:
        return toText(value);
    default:
        return toNumber(rule, value);
    }
}

bool isOfSameKind(jet::ColumnType type, const FieldRule& rule) {
    return kindOf(type) == kindOf(rule.type);
}

bool hasOnlyCharacters(std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool high = (text[i] & 0xFC00) == 0xD800;
        const bool low = (text[i] & 0xFC00) == 0xDC00;
        if (low || (high && (i + 1 == text.size() || (text[i + 1] & 0xFC00) != 0xDC00)))
            return false;
        i += high;
    }
    return true;
}

} // namespace coursetool
