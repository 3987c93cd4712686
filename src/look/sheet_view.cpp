#include "look/sheet_view.h"

#include "look/palette.h"
#include "look/pixels.h"
#include "output/raster/sheet_raster.h"
#include "page/twips.h"

#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace look {

namespace {

constexpr int kMargin = 12; ///< of the ground around the sheet
constexpr int kWheelNotch = 120;

} // namespace

SheetView::SheetView(const page::FontBook& fonts, QWidget* parent)
    : QWidget(parent), fonts_(fonts) {
    setObjectName(QStringLiteral("sheet"));
    setAccessibleName(QStringLiteral("Aperçu de la feuille"));
}

void SheetView::show(const page::Sheet& sheet) {
    sheet_ = sheet;
    image_ = {};
    update();
}

/// The whole of it at once: a sheet of a few hundred pixels.
void SheetView::draw(QSizeF room, double ratio) {
    const QSizeF logical(sheet_.width / page::kTwipsPerPixel, sheet_.height / page::kTwipsPerPixel);
    const double scale =
        std::min(room.width() / logical.width(), room.height() / logical.height()) * ratio;
    output::SheetRaster raster(fonts_, scale);
    image_ = QImage(raster.size(sheet_), QImage::Format_RGB32);
    image_.setDevicePixelRatio(ratio);
    QPainter painter(&image_);
    const int rows = raster.bandRows(sheet_);
    for (int top = 0; top < image_.height(); top += rows)
        painter.drawImage(QPointF(0, top / ratio), [&] {
            QImage band = raster.band(sheet_, top);
            band.setDevicePixelRatio(ratio);
            return band;
        }());
}

void SheetView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(kScrollTrack));
    if (!(sheet_.width > 0 && sheet_.height > 0))
        return;
    const double ratio = devicePixelRatioF();
    if (image_.isNull() || image_.devicePixelRatio() != ratio)
        draw(QSizeF(size()) - QSizeF(2 * kMargin, 2 * kMargin), ratio);
    const QSizeF shown = image_.deviceIndependentSize();
    const QPointF corner(snapped(painter, (width() - shown.width()) / 2),
                         snapped(painter, (height() - shown.height()) / 2));
    const double line = crisp(painter);
    painter.fillRect(QRectF(corner, shown).adjusted(-line, -line, line, line),
                     QColor::fromRgb(kEdge));
    painter.drawImage(corner, image_);
    shown_ = QRectF(corner, shown).toAlignedRect();
}

/// Touchpads report fractions of a notch.
void SheetView::wheelEvent(QWheelEvent* event) {
    wheelAngle_ += event->angleDelta().y();
    for (; step_ && wheelAngle_ >= kWheelNotch; wheelAngle_ -= kWheelNotch)
        step_(-1);
    for (; step_ && wheelAngle_ <= -kWheelNotch; wheelAngle_ += kWheelNotch)
        step_(1);
    event->accept();
}

} // namespace look
