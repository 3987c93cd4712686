#pragma once

#include "common/data_table.h"
#include "reaction/experiment.h"

namespace common {
class TableModel;
}

namespace reaction {

/// The table of the reaction's progress.
class StateTable : public common::DataTable {
public:
    explicit StateTable(Experiment& experiment, QWidget* parent = nullptr);

private:
    StateTable(Experiment& experiment, common::TableModel* model, QWidget* parent);
};

} // namespace reaction
