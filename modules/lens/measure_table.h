#pragma once

#include "common/data_table.h"
#include "lens/bench.h"

#include <QAbstractTableModel>

namespace lens {

/// The measures that were taken, with what a pupil calculates from them.
class MeasureModel : public QAbstractTableModel {
public:
    explicit MeasureModel(Bench& bench, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Bench& bench_;
};

/// The table, and what to do while it is empty.
class MeasureTable : public common::DataTable {
public:
    explicit MeasureTable(Bench& bench, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lens
