#include "lens/measure_table.h"

#include "common/qt_text.h"
#include "common/table_model.h"
#include "lens/listing.h"
#include "look/palette.h"

#include <QPainter>

namespace lens {

namespace {

constexpr int kMargin = 16;

} // namespace

MeasureTable::MeasureTable(Bench& bench, QWidget* parent)
    : MeasureTable(bench, new common::TableModel([&bench] { return measuresOf(bench); }), parent) {}

MeasureTable::MeasureTable(Bench& bench, common::TableModel* model, QWidget* parent)
    : DataTable(model, QStringLiteral("Mesures"), parent) {
    model->setParent(this);
    bench.onMeasured([model] { model->refresh(); });
}

void MeasureTable::paintEvent(QPaintEvent* event) {
    DataTable::paintEvent(event);
    if (model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignTop | Qt::TextWordWrap, common::qtText(kNoMeasures));
}

} // namespace lens
