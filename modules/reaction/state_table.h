#pragma once

#include "common/data_table.h"
#include "reaction/experiment.h"

#include <QAbstractTableModel>

namespace reaction {

/// The table of the reaction's progress: initial state, state at x as expressions and as numbers,
/// final state; a column for x and one for each species.
class StateModel : public QAbstractTableModel {
public:
    explicit StateModel(Experiment& experiment, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString progressCell(int row) const;
    QString amountCell(int row, std::size_t species) const;

    const Experiment& experiment_;
};

class StateTable : public common::DataTable {
public:
    explicit StateTable(Experiment& experiment, QWidget* parent = nullptr);
};

} // namespace reaction
