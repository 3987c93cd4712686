#include "jet/column.h"

namespace jet {

const char* typeName(ColumnType type) {
    switch (type) {
    case ColumnType::Boolean:
        return "Boolean";
    case ColumnType::Byte:
        return "Byte";
    case ColumnType::Integer:
        return "Integer";
    case ColumnType::Long:
        return "Long";
    case ColumnType::Currency:
        return "Currency";
    case ColumnType::Single:
        return "Single";
    case ColumnType::Double:
        return "Double";
    case ColumnType::DateTime:
        return "DateTime";
    case ColumnType::Binary:
    case ColumnType::FixedBinary:
        return "Binary";
    case ColumnType::Text:
        return "Text";
    case ColumnType::Ole:
        return "OLE";
    case ColumnType::Memo:
        return "Memo";
    case ColumnType::Guid:
        return "GUID";
    case ColumnType::Decimal:
        return "Decimal";
    case ColumnType::Unknown:
        break;
    }
    return "?";
}

} // namespace jet
