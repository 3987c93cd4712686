#pragma once

#include "common/data_table.h"
#include "lens/bench.h"

namespace common {
class TableModel;
}

namespace lens {

/// The measures taken, and what to do while there are none.
class MeasureTable : public common::DataTable {
public:
    explicit MeasureTable(Bench& bench, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MeasureTable(Bench& bench, common::TableModel* model, QWidget* parent);
};

} // namespace lens
