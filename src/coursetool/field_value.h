#pragma once

#include "coursetool/tables.h"
#include "jet/value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace coursetool {

/// A value as a source gives it; monostate for the kinds that no field takes (dates, lists...).
using SourceValue = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

/// A value made fit for its column, or the sentence that says what to write instead.
struct FieldResult {
    jet::Value value;
    std::string complaint; ///< empty when the value fits
};
FieldResult toField(const FieldRule& rule, const SourceValue& given);

/// Smallest and largest number of a Long or Integer column.
struct NumberRange {
    std::int64_t lowest;
    std::int64_t highest;
};
NumberRange numberRange(jet::ColumnType type);

/// The whole of `text` as a decimal number in its shortest form, as it would be written back.
std::optional<std::int64_t> canonicalNumber(std::string_view text);

} // namespace coursetool
