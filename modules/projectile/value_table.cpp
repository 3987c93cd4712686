#include "projectile/value_table.h"

#include "common/table_model.h"
#include "projectile/listing.h"

#include <algorithm>

namespace projectile {

ValueTable::ValueTable(Experiment& experiment, QWidget* parent)
    : ValueTable(experiment,
                 new common::TableModel([&experiment] { return valuesOf(experiment.flight()); }),
                 parent) {}

ValueTable::ValueTable(Experiment& experiment, common::TableModel* model, QWidget* parent)
    : DataTable(model, QStringLiteral("Tableau de valeurs"), parent), experiment_(experiment),
      moments_(strobeMoments(experiment.flight())) {
    model->setParent(this);
    experiment_.onChanged([this, model] {
        moments_ = strobeMoments(experiment_.flight());
        model->refresh();
        follow();
    });
    experiment_.onMoved([this] { follow(); });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) {
                // Only what the person chose: the simulation's own moves come from `follow`.
                if (!hasFocus() || experiment_.playback().isRunning() || row.row() == rowNow())
                    return;
                const double t = moments_.at(static_cast<std::size_t>(row.row())).t;
                experiment_.player().play([t](common::Playback& playback) { playback.seek(t); });
            });
    follow();
}

int ValueTable::rowNow() const {
    const auto next =
        std::upper_bound(moments_.begin(), moments_.end(), experiment_.playback().time(),
                         [](double time, const Moment& m) { return time < m.t; });
    return std::max(0, static_cast<int>(next - moments_.begin()) - 1);
}

void ValueTable::follow() {
    // While a flight gives way to another the table may still have fewer rows.
    const int row = std::min(rowNow(), model()->rowCount() - 1);
    if (currentIndex().row() != row)
        setCurrentIndex(model()->index(row, 0));
}

} // namespace projectile
