#include "common/table_model.h"

#include "common/data_table.h"
#include "common/qt_text.h"

#include <utility>

namespace common {

TableModel::TableModel(std::function<Table()> find, QObject* parent)
    : QAbstractTableModel(parent), find_(std::move(find)), table_(find_()) {}

void TableModel::refresh() {
    Table table = find_();
    // While a simulation runs only its numbers change.
    const bool isSameForm = table.columns == table_.columns && !table.rows.empty() &&
                            table.rows.size() == table_.rows.size();
    if (!isSameForm)
        beginResetModel();
    table_ = std::move(table);
    if (!isSameForm)
        endResetModel();
    else
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const auto column = static_cast<std::size_t>(index.column());
    const Column::Kind kind = table_.columns.at(column).kind;
    if (role == Qt::TextAlignmentRole)
        return kind == Column::Kind::Names ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                                           : numberAlignment();
    const bool isShown =
        role == Qt::DisplayRole || (role == kFormulaRole && kind == Column::Kind::Formulas);
    return isShown
               ? QVariant(qtText(table_.rows.at(static_cast<std::size_t>(index.row())).at(column)))
               : QVariant();
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    const Column& column = table_.columns.at(static_cast<std::size_t>(section));
    if (role == Qt::DisplayRole)
        return qtText(column.plain);
    return role == kFormulaRole && !column.formula.empty() ? QVariant(qtText(column.formula))
                                                           : QVariant();
}

} // namespace common
