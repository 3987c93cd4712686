#pragma once

#include "common/data_table.h"
#include "projectile/experiment.h"

#include <QAbstractTableModel>

namespace projectile {

/// The moments of the stroboscope and the landing, a row each.
class ValueModel : public QAbstractTableModel {
public:
    explicit ValueModel(Experiment& experiment, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    const Moment& moment(int row) const { return moments_.at(static_cast<std::size_t>(row)); }

    /// The last row whose moment has come at `t` seconds.
    int rowAt(double t) const;

private:
    void refill();

    const Experiment& experiment_;
    std::vector<Moment> moments_;
};

/// The table, whose selected row follows the simulation.
class ValueTable : public common::DataTable {
public:
    explicit ValueTable(Experiment& experiment, QWidget* parent = nullptr);

private:
    ValueTable(Experiment& experiment, ValueModel* model, QWidget* parent);
    void follow();

    Experiment& experiment_;
    ValueModel* model_;
};

} // namespace projectile
