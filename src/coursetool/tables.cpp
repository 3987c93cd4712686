#include "coursetool/tables.h"

#include "text/utf8.h"

#include <algorithm>

namespace coursetool {

using enum jet::ColumnType;

const TableRule& coursTable() {
    static constexpr FieldRule kFields[] = {
        {"Numeropage", Long, true, "12"},
        {"Index", Long, false, "7"},
        {"titre", Text, false, "\"La réfraction\""},
        {"precedent", Boolean, false, "true"},
        {"suite", Boolean, false, "true"},
        {"imprimable", Boolean, false, "true"},
        {"moteur", Boolean, false, "true"},
        {"debutimp", Long, false, "11"},
        {"finimp", Long, false, "13"},
        {"sommaire", Long, false, "28"},
        {"fpc", Memo, false, ""},
    };
    static constexpr TableRule kTable{"cours", kFields};
    return kTable;
}

const TableRule& descriptionTable() {
    static constexpr FieldRule kFields[] = {
        {"Chapitre", Integer, true, "3"},
        {"Titre", Text, false, "\"La réfraction\""},
        {"Nbquest", Integer, false, "10"},
    };
    static constexpr TableRule kTable{"DESCRIPTION", kFields};
    return kTable;
}

const TableRule& contenuTable() {
    static constexpr FieldRule kFields[] = {
        {"REFERENCE", Long, true, "307"},
        {"type", Integer, false, "1"},
        {"solution", Text, false, "\"01001\""},
        {"question", Memo, false, ""},
        {"SiFaux", Memo, false, ""},
    };
    static constexpr TableRule kTable{"Contenu", kFields};
    return kTable;
}

std::span<const FieldRule> frontMatterFields(const TableRule& table) {
    const auto firstMemo = std::find_if(table.fields.begin(), table.fields.end(),
                                        [](const FieldRule& rule) { return rule.type == Memo; });
    return {table.fields.begin(), firstMemo};
}

std::vector<jet::Column> columnsOf(const TableRule& table) {
    std::vector<jet::Column> columns;
    for (const FieldRule& rule : table.fields) {
        jet::Column column;
        column.name = text::toUtf16(rule.name);
        column.type = rule.type;
        column.length = rule.type == Text ? kMaxTextLength : 0;
        columns.push_back(std::move(column));
    }
    return columns;
}

} // namespace coursetool
