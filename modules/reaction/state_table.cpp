#include "reaction/state_table.h"

#include "common/french_number.h"

#include <QHeaderView>

namespace reaction {

namespace {

enum Row { Initial, During, Now, Final, Rows };

/// Columns before those of the species.
enum Column { Head, Progress, FirstSpecies };

constexpr int kRowHeight = 30;

QString mol(double amount) {
    return common::frenchNumber(amount, 2);
}

QString headOf(int row) {
    switch (row) {
    case Initial:
        return QStringLiteral("état initial");
    case During:
        return QStringLiteral("en cours");
    case Now:
        return QStringLiteral("à cet instant");
    default:
        return QStringLiteral("état final");
    }
}

/// "2,00 − 3 x", a formula.
QString expression(double initial, int coefficient, bool isReactant) {
    const QString change =
        (coefficient > 1 ? QString::number(coefficient) + u'\u00A0' : QString()) + u'x';
    return isReactant ? mol(initial) + QStringLiteral(" − ") + change : change;
}

} // namespace

StateModel::StateModel(Experiment& experiment, QObject* parent)
    : QAbstractTableModel(parent), experiment_(experiment) {
    experiment.onChanged([this] {
        beginResetModel();
        endResetModel();
    });
    experiment.onMoved([this] {
        if (columnCount() > 0)
            Q_EMIT dataChanged(index(Now, 0), index(Now, columnCount() - 1));
    });
}

int StateModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Rows;
}

int StateModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : FirstSpecies + static_cast<int>(experiment_.reaction().count);
}

QString StateModel::progressCell(int row) const {
    switch (row) {
    case Initial:
        return QStringLiteral("0");
    case During:
        return QStringLiteral("x");
    case Now:
        return mol(experiment_.progress());
    default:
        return experiment_.hidesResults() ? QStringLiteral("?")
                                          : mol(experiment_.mixture().maximum());
    }
}

QString StateModel::amountCell(int row, std::size_t species) const {
    const Mixture& mixture = experiment_.mixture();
    switch (row) {
    case Initial:
        return mol(mixture.amount(species, 0));
    case During:
        return expression(mixture.amount(species, 0), mixture.reaction->all.at(species).coefficient,
                          species < kReactants);
    case Now:
        return mol(experiment_.amountNow(species));
    default:
        return experiment_.hidesResults() ? QStringLiteral("?")
                                          : mol(mixture.amount(species, mixture.maximum()));
    }
}

QVariant StateModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const bool isHead = index.column() == Head;
    if (role == Qt::TextAlignmentRole)
        return isHead ? QVariant(Qt::AlignLeft | Qt::AlignVCenter) : common::numberAlignment();
    if (role != Qt::DisplayRole && (role != common::kFormulaRole || isHead))
        return {};
    return isHead ? headOf(index.row())
           : index.column() == Progress
               ? progressCell(index.row())
               : amountCell(index.row(), static_cast<std::size_t>(index.column() - FirstSpecies));
}

QVariant StateModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool plain = role == Qt::DisplayRole;
    if (orientation != Qt::Horizontal || (!plain && role != common::kFormulaRole))
        return {};
    if (section == Head)
        return plain ? QVariant(QStringLiteral("état")) : QVariant();
    if (section == Progress)
        return plain ? QStringLiteral("x (mol)") : QStringLiteral("x\\text{ (mol)}");
    const auto species = static_cast<std::size_t>(section - FirstSpecies);
    const char16_t* formula = experiment_.reaction().all.at(species).formula;
    return plain ? QStringLiteral("n(%1) (mol)").arg(QString::fromUtf16(formula))
                 : QStringLiteral("n\\text{(}%1\\text{) (mol)}").arg(formulaOf(formula));
}

StateTable::StateTable(Experiment& experiment, QWidget* parent)
    : DataTable(new StateModel(experiment), QStringLiteral("Tableau d’avancement"), parent) {
    model()->setParent(this);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
}

} // namespace reaction
