#include "jet/changed_cell.h"

#include "jet/cell_encoder.h"
#include "text/utf8.h"

#include <utility>

namespace jet {

namespace {

bool isLongType(ColumnType type) {
    return type == ColumnType::Memo || type == ColumnType::Ole;
}

/// Why no value at all can be put in the column; nullptr when one can.
const char* whyNotChangeable(const Column& column, const ColumnPlace& place,
                             const TableDefinition& definition, const TableTail& tail) {
    if (tail.indexedColumns.contains(place.number))
        return "elle appartient à un index, sa valeur ne se change pas";
    if (column.autoNumber)
        return "elle se numérote elle-même, sa valeur ne se change pas";
    if (place.number >= definition.shape.maxColumns || (isLongType(column.type) && place.fixed) ||
        (column.type == ColumnType::Boolean && !place.fixed) ||
        (!place.fixed && !definition.shape.hasVariableColumns))
        return "sa définition se contredit";
    return nullptr;
}

} // namespace

Result<ChangedCell> encodeChangedCell(const TableDefinition& definition, const TableTail& tail,
                                      std::size_t column, const Value& value) {
    const Column& declared = definition.columns[column];
    const auto refused = [&](const char* why) {
        return Failure{Failure::Kind::Refused,
                       "colonne « " + text::toUtf8(declared.name) + " », " + why};
    };
    ChangedCell cell;
    cell.column = column;
    cell.place = definition.places[column];
    cell.isLong = isLongType(declared.type);
    if (const char* why = whyNotChangeable(declared, cell.place, definition, tail))
        return refused(why);
    if (declared.type == ColumnType::Boolean)
        cell.place.fixedOffset = cell.place.size = 0;

    const bool* boolean = value.as<bool>();
    cell.absent = value.isNull() || (declared.type == ColumnType::Boolean && boolean && !*boolean);
    if (cell.absent)
        return cell;
    auto encoded = encodeCell(value, declared, *definition.shape.format);
    if (encoded.fault)
        return refused(encoded.fault);
    if (cell.place.fixed && encoded.bytes.size() != cell.place.size)
        return refused("sa définition se contredit");
    cell.bytes = std::move(encoded.bytes);
    return cell;
}

} // namespace jet
