#include "lens/measure_table.h"

#include "common/french_number.h"
#include "look/palette.h"

#include <QPainter>

namespace lens {

namespace {

struct Column {
    const char16_t* plain; ///< head, as a spreadsheet has it
    const char16_t* formula;
    int decimals;
    double (*value)(const Measure&);
};

constexpr Column kColumns[] = {
    {u"OA (cm)", u"\\overline{\\text{OA}}\\text{ (cm)}", 1,
     [](const Measure& m) { return m.object; }},
    {u"OA′ (cm)", u"\\overline{\\text{OA′}}\\text{ (cm)}", 1,
     [](const Measure& m) { return m.screen; }},
    {u"A′B′ (cm)", u"\\overline{\\text{A′B′}}\\text{ (cm)}", 2,
     [](const Measure& m) { return m.height; }},
    {u"γ", u"γ", 2, [](const Measure& m) { return m.screen / m.object; }},
    {u"1/OA (1/m)", u"1/\\overline{\\text{OA}}\\text{ (m}^{−1}\\text{)}", 2,
     [](const Measure& m) { return 100 / m.object; }},
    {u"1/OA′ (1/m)", u"1/\\overline{\\text{OA′}}\\text{ (m}^{−1}\\text{)}", 2,
     [](const Measure& m) { return 100 / m.screen; }},
    {u"écart (1/m)", u"\\text{écart (m}^{−1}\\text{)}", 2,
     [](const Measure& m) { return 100 / m.screen - 100 / m.object; }},
};
constexpr int kMargin = 16;

const Column& columnOf(int section) {
    return kColumns[section];
}

} // namespace

MeasureModel::MeasureModel(Bench& bench, QObject* parent)
    : QAbstractTableModel(parent), bench_(bench) {
    bench.onMeasured([this] {
        beginResetModel();
        endResetModel();
    });
}

int MeasureModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(bench_.measures().size());
}

int MeasureModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::size(kColumns));
}

QVariant MeasureModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole)
        return common::numberAlignment();
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    const Column& column = columnOf(index.column());
    return common::frenchNumber(
        column.value(bench_.measures().at(static_cast<std::size_t>(index.row()))), column.decimals);
}

QVariant MeasureModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    const Column& column = columnOf(section);
    return role == Qt::DisplayRole        ? QVariant(QString::fromUtf16(column.plain))
           : role == common::kFormulaRole ? QVariant(QString::fromUtf16(column.formula))
                                          : QVariant();
}

MeasureTable::MeasureTable(Bench& bench, QWidget* parent)
    : DataTable(new MeasureModel(bench), QStringLiteral("Mesures"), parent) {
    model()->setParent(this);
}

void MeasureTable::paintEvent(QPaintEvent* event) {
    DataTable::paintEvent(event);
    if (model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignTop | Qt::TextWordWrap,
                     QStringLiteral("Déplacez l’écran jusqu’à ce que l’image soit nette, puis "
                                    "«\u00A0Noter la mesure\u00A0». L’écart des deux inverses "
                                    "est-elle toujours la même\u00A0?"));
}

} // namespace lens
