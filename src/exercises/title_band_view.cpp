#include "exercises/title_band_view.h"

#include "exercises/title_band.h"
#include "platform/font.h"
#include "platform/qt/look/interface_font.h"
#include "platform/qt/look/pixels.h"
#include "platform/twips.h"

#include <QFontMetricsF>
#include <QPainter>

namespace exercises {

TitleBandView::TitleBandView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("tito"));
    setFont(platform::look::interfaceFont(platform::fontPixels(kTitlePoints),
                                          platform::look::Weight::Bold));
    setAccessibleName(kBandTitle);
}

void TitleBandView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    const QFontMetricsF metrics(font());
    const double foot =
        platform::look::snapped(painter, (height() - metrics.height()) / 2 + metrics.ascent());
    double x = kTitleLeftTwips / platform::kTwipsPerPixel;
    const int length = static_cast<int>(kBandTitle.size());
    for (int i = 1; i <= length; ++i) {
        const QString letter(kBandTitle.at(i - 1));
        painter.setPen(QColor::fromRgb(titleInk(i, length)));
        painter.drawText(QPointF(x, foot), letter);
        x += metrics.horizontalAdvance(letter);
    }
}

} // namespace exercises
