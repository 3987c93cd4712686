#include "projectile/value_table.h"

#include "common/french_number.h"

#include <algorithm>
#include <cmath>

namespace projectile {

namespace {

struct Head {
    const char* symbol; ///< a formula
    const char* unit;
};

constexpr Head kHeads[] = {{"t", "s"},   {"x", "m"},   {"y", "m"},   {"v_x", "m/s"}, {"v_y", "m/s"},
                           {"v", "m/s"}, {"E_c", "J"}, {"E_p", "J"}, {"E_m", "J"}};
constexpr int kColumns = static_cast<int>(std::size(kHeads));
constexpr int kFirstEnergy = 6; ///< the columns from here on

double valueOf(const Flight& flight, const Moment& moment, int column) {
    const Energies energies = flight.energies(moment);
    const double values[kColumns] = {moment.t,         moment.x,           moment.y,
                                     moment.vx,        moment.vy,          moment.speed(),
                                     energies.kinetic, energies.potential, energies.mechanical()};
    return values[column];
}

/// "v_x (m/s)", plain.
QString plainHead(int column) {
    return QStringLiteral("%1 (%2)").arg(QString::fromUtf8(kHeads[column].symbol),
                                         QString::fromUtf8(kHeads[column].unit));
}

/// The same as a formula.
QString formulaHead(int column) {
    return QStringLiteral("%1\\text{ (%2)}")
        .arg(QString::fromUtf8(kHeads[column].symbol), QString::fromUtf8(kHeads[column].unit));
}

} // namespace

ValueModel::ValueModel(Experiment& experiment, QObject* parent)
    : QAbstractTableModel(parent), experiment_(experiment) {
    experiment.onChanged([this] {
        beginResetModel();
        refill();
        endResetModel();
    });
    refill();
}

void ValueModel::refill() {
    moments_ = strobeMoments(experiment_.flight());
}

int ValueModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(moments_.size());
}

int ValueModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant ValueModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole)
        return common::numberAlignment();
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    const Moment& moment = moments_.at(static_cast<std::size_t>(index.row()));
    const double value = valueOf(experiment_.flight(), moment, index.column());
    return common::frenchNumber(
        value, index.column() < kFirstEnergy ? 2 : experiment_.flight().energyDecimals());
}

QVariant ValueModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    return role == Qt::DisplayRole        ? QVariant(plainHead(section))
           : role == common::kFormulaRole ? QVariant(formulaHead(section))
                                          : QVariant();
}

int ValueModel::rowAt(double t) const {
    const auto next = std::upper_bound(moments_.begin(), moments_.end(), t,
                                       [](double time, const Moment& m) { return time < m.t; });
    return std::max(0, static_cast<int>(next - moments_.begin()) - 1);
}

ValueTable::ValueTable(Experiment& experiment, QWidget* parent)
    : ValueTable(experiment, new ValueModel(experiment), parent) {}

ValueTable::ValueTable(Experiment& experiment, ValueModel* model, QWidget* parent)
    : DataTable(model, QStringLiteral("Tableau de valeurs"), parent), experiment_(experiment),
      model_(model) {
    model_->setParent(this);
    experiment_.onMoved([this] { follow(); });
    connect(model_, &QAbstractItemModel::modelReset, this, &ValueTable::follow);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) {
                // Only what the person chose: the simulation's own moves come from `follow`.
                if (!hasFocus() || experiment_.playback().isRunning())
                    return;
                const double t = model_->moment(row.row()).t;
                if (row.row() != model_->rowAt(experiment_.playback().time()))
                    experiment_.player().play(
                        [t](common::Playback& playback) { playback.seek(t); });
            });
    follow();
}

void ValueTable::follow() {
    const int row = model_->rowAt(experiment_.playback().time());
    if (currentIndex().row() != row)
        setCurrentIndex(model_->index(row, 0));
}

} // namespace projectile
