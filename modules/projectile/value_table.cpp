#include "projectile/value_table.h"

#include "common/formula.h"
#include "common/french_number.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/scroll_bar.h"
#include "look/tool_tip.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

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
constexpr int kRowHeight = 24;
constexpr int kHeadHeight = 28;

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

/// Numbers as spreadsheets read them: without blanks, with the minus sign of the keyboard.
QString plainNumber(QString number) {
    return number.remove(QChar(0x202F)).replace(QChar(0x2212), u'-');
}

/// Heads of columns set as formulas.
class FormulaHeader : public QHeaderView {
public:
    explicit FormulaHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
        setSectionResizeMode(QHeaderView::Stretch);
        setFixedHeight(kHeadHeight);
    }

protected:
    void paintSection(QPainter* painter, const QRect& rect, int column) const override {
        painter->fillRect(rect, QColor::fromRgb(look::kIvory));
        painter->setPen(QColor::fromRgb(look::kRule));
        painter->drawLine(rect.bottomLeft(), rect.bottomRight());
        painter->setPen(QColor::fromRgb(look::kInk));
        const common::Formula head(QStringLiteral("%1\\text{ (%2)}")
                                       .arg(QString::fromUtf8(kHeads[column].symbol),
                                            QString::fromUtf8(kHeads[column].unit)),
                                   look::kLabelPx);
        head.paint(*painter, {rect.right() - head.width() - 4, rect.top() + 18.0});
    }
};

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
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    const Moment& moment = moments_.at(static_cast<std::size_t>(index.row()));
    const double value = valueOf(experiment_.flight(), moment, index.column());
    return common::frenchNumber(
        value, index.column() < kFirstEnergy ? 2 : experiment_.flight().energyDecimals());
}

QVariant ValueModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return plainHead(section);
}

int ValueModel::rowAt(double t) const {
    const auto next = std::upper_bound(moments_.begin(), moments_.end(), t,
                                       [](double time, const Moment& m) { return time < m.t; });
    return std::max(0, static_cast<int>(next - moments_.begin()) - 1);
}

ValueTable::ValueTable(Experiment& experiment, QWidget* parent)
    : QTableView(parent), experiment_(experiment), model_(new ValueModel(experiment, this)) {
    setModel(model_);
    setAccessibleName(QStringLiteral("Tableau de valeurs"));
    look::setToolTip(*this, QStringLiteral("Ctrl+C copie tout le tableau pour un tableur."));
    setVerticalScrollBar(new look::ScrollBar(this, look::ScrollBar::Top::Minimum));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    setHorizontalHeader(new FormulaHeader(this));
    experiment_.onMoved([this] { follow(); });
    connect(model_, &QAbstractItemModel::modelReset, this, &ValueTable::follow);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) {
                // Only what the person chose: the simulation's own moves come from `follow`.
                if (!hasFocus() || experiment_.playback().isRunning())
                    return;
                const double t = model_->moment(row.row()).t;
                if (row.row() != model_->rowAt(experiment_.playback().time()))
                    experiment_.play([t](Playback& playback) { playback.seek(t); });
            });
    follow();
}

void ValueTable::follow() {
    const int row = model_->rowAt(experiment_.playback().time());
    if (currentIndex().row() != row)
        setCurrentIndex(model_->index(row, 0));
}

void ValueTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copyAll();
    else if (event->key() == Qt::Key_Space)
        event->ignore(); // starts and stops the simulation
    else
        QTableView::keyPressEvent(event);
}

void ValueTable::copyAll() const {
    QStringList lines;
    QStringList cells;
    for (int column = 0; column < kColumns; ++column)
        cells += plainHead(column);
    lines += cells.join(u'\t');
    for (int row = 0; row < model_->rowCount(); ++row) {
        cells.clear();
        for (int column = 0; column < kColumns; ++column)
            cells += plainNumber(model_->index(row, column).data().toString());
        lines += cells.join(u'\t');
    }
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

} // namespace projectile
