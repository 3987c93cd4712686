#include "exercises/title_band_view.h"

#include "exercises/title_band.h"
#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/pixels.h"
#include "page/font.h"
#include "page/twips.h"

#include <QFontMetricsF>
#include <QPainter>

namespace exercises {

TitleBandView::TitleBandView(QWidget* parent) : QWidget(parent) {
    look::setAccessibleRole(*this, QAccessible::Heading);
    setObjectName(QStringLiteral("tito"));
    setFont(look::interfaceFont(page::fontPixels(kTitlePoints), look::Weight::Bold));
    setAccessibleName(kBandTitle);
}

void TitleBandView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    const QFontMetricsF metrics(font());
    const double foot =
        look::snapped(painter, (height() - metrics.height()) / 2 + metrics.ascent());
    double x = kTitleLeftTwips / page::kTwipsPerPixel;
    const int length = static_cast<int>(kBandTitle.size());
    for (int i = 1; i <= length; ++i) {
        const QString letter(kBandTitle.at(i - 1));
        painter.setPen(QColor::fromRgb(titleInk(i, length)));
        painter.drawText(QPointF(x, foot), letter);
        x += metrics.horizontalAdvance(letter);
    }
}

} // namespace exercises
