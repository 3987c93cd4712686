#pragma once

#include "common/table.h"

#include <QAbstractTableModel>

#include <functional>

namespace common {

/// A table for a DataTable.
class TableModel : public QAbstractTableModel {
public:
    /// `find` gives what is to be shown at the moment.
    explicit TableModel(std::function<Table()> find, QObject* parent = nullptr);

    /// Asks for it anew.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::function<Table()> find_;
    Table table_;
};

} // namespace common
