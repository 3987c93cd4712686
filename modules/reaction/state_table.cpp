#include "reaction/state_table.h"

#include "common/table_model.h"
#include "reaction/listing.h"

#include <QHeaderView>

namespace reaction {

namespace {

constexpr int kRowHeight = 30;

} // namespace

StateTable::StateTable(Experiment& experiment, QWidget* parent)
    : StateTable(experiment, new common::TableModel([&experiment] { return statesOf(experiment); }),
                 parent) {}

StateTable::StateTable(Experiment& experiment, common::TableModel* model, QWidget* parent)
    : DataTable(model, QStringLiteral("Tableau d’avancement"), parent) {
    model->setParent(this);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    experiment.onChanged([model] { model->refresh(); });
    experiment.onMoved([model] { model->refresh(); });
}

} // namespace reaction
