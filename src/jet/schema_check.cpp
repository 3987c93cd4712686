#include "jet/schema_check.h"

#include "jet/format.h"
#include "jet/index_builder.h"
#include "jet/names.h"
#include "text/utf8.h"

#include <algorithm>
#include <string>

namespace jet {

namespace {

constexpr std::size_t kLongestName = 64;
constexpr std::u16string_view kSystemPrefix = u"MSys";

Failure refused(std::u16string_view table, const std::string& what) {
    return {Failure::Kind::Refused, "table « " + text::toUtf8(table) + " » : " + what};
}

bool isControl(char16_t c) {
    return c < 0x20 || c == 0x7F;
}

/// Length and blanks, the same for all names.
bool hasNameShape(std::u16string_view name) {
    return !name.empty() && name.size() <= kLongestName && name.front() != u' ' &&
           name.back() != u' ';
}

const char* nameFault(std::u16string_view table) {
    if (!hasNameShape(table))
        return "un nom a de 1 à 64 caractères et ni commence ni finit par un espace";
    if (!isIndexable(table))
        return "un nom de table n’a que des lettres sans accent, des chiffres, des espaces et « _ "
               "»";
    if (sameName(table.substr(0, kSystemPrefix.size()), kSystemPrefix))
        return "les noms en « MSys » sont ceux du système";
    return nullptr;
}

const char* nameFault(const Column& column) {
    constexpr std::u16string_view kForbidden = u".!`[]";
    if (!hasNameShape(column.name))
        return "un nom a de 1 à 64 caractères et ni commence ni finit par un espace";
    for (const char16_t c : column.name)
        if (isControl(c) || kForbidden.find(c) != std::u16string_view::npos)
            return "un nom de colonne n’a ni point, ni « ! », ni crochet, ni accent grave seul";
    return nullptr;
}

bool isBetween(int value, int least, int most) {
    return value >= least && value <= most;
}

const char* typeFault(const Column& column) {
    if (column.autoNumber && column.type != ColumnType::Long)
        return "seul un Long se numérote de lui-même";
    switch (column.type) {
    case ColumnType::Unknown:
    case ColumnType::FixedBinary:
        return "ce type ne s’écrit pas";
    case ColumnType::Text:
    case ColumnType::Binary:
        return isBetween(column.length, 1, 255) ? nullptr : "la longueur va de 1 à 255";
    case ColumnType::Decimal:
        return isBetween(column.precision, 1, 28) && isBetween(column.scale, 0, column.precision)
                   ? nullptr
                   : "la précision va de 1 à 28, les décimales de 0 à la précision";
    default:
        return nullptr;
    }
}

bool isRepeated(std::span<const Column> columns, std::size_t index) {
    const auto before = columns.first(index);
    return std::any_of(before.begin(), before.end(), [&](const Column& other) {
        return sameName(other.name, columns[index].name);
    });
}

} // namespace

Result<void> checkSchema(std::u16string_view table, std::span<const Column> columns) {
    if (const char* fault = nameFault(table))
        return refused(table, fault);
    if (columns.empty() || columns.size() > kMaxColumns)
        return refused(table, "une table a de 1 à 255 colonnes");
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const char* fault = nameFault(columns[i]);
        if (!fault)
            fault = typeFault(columns[i]);
        if (!fault && isRepeated(columns, i))
            fault = "une autre colonne a le même nom";
        if (fault)
            return refused(table, "colonne « " + text::toUtf8(columns[i].name) + " » : " + fault);
    }
    return {};
}

} // namespace jet
