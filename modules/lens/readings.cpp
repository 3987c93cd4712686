#include "lens/readings.h"

#include "common/qt_text.h"
#include "common/reading_painter.h"
#include "lens/listing.h"
#include "look/accessible_role.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

namespace lens {

namespace {

constexpr int kLines = 5;
constexpr int kEdges = 6; ///< above the first line and below the last

} // namespace

Readings::Readings(Bench& bench, QWidget* parent) : QWidget(parent), bench_(bench) {
    look::setAccessibleRole(*this, QAccessible::StaticText);
    setFixedHeight(kLines * common::kReadingHeight + kEdges);
    setMinimumWidth(360); // narrower, lines would be cut
    setAccessibleName(QStringLiteral("Valeurs de l’objet, de la lentille et de l’image"));
    bench_.onChanged([this] { show(); });
    show();
}

void Readings::show() {
    setAccessibleDescription(common::qtText(imageInWords(bench_)));
    update();
}

void Readings::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    double top = kEdges / 2;
    for (const common::ReadingGroup& group : readingsOf(bench_))
        top = common::paintReadings(painter, top, width(), group);
}

} // namespace lens
