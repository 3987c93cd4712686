#pragma once

#include "common/data_table.h"
#include "projectile/experiment.h"

namespace common {
class TableModel;
}

namespace projectile {

/// The moments of the stroboscope and the landing, a row each; the selected row follows the
/// simulation.
class ValueTable : public common::DataTable {
public:
    explicit ValueTable(Experiment& experiment, QWidget* parent = nullptr);

private:
    ValueTable(Experiment& experiment, common::TableModel* model, QWidget* parent);
    /// The last row whose moment has come.
    int rowNow() const;
    void follow();

    Experiment& experiment_;
    std::vector<Moment> moments_; ///< of the rows
};

} // namespace projectile
