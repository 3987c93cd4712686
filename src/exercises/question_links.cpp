#include "exercises/question_links.h"

#include "look/accessible_role.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/tool_tip.h"
#include "markup/drawn_page.h"
#include "output/raster/raster_surface.h"
#include "page/link_view.h"
#include "page/surface.h"
#include "page/twips.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace exercises {

namespace {

constexpr double kRingRadius = 3;
constexpr int kIconPx = static_cast<int>(markup::AnswerFields::kIconWidth / page::kTwipsPerPixel);

/// Largest caption, in pixels: what is wider lies outside the question area, and what is taller is
/// no caption.
constexpr QSize kLargestCaption(2000, 1000);

int pixels(double twips) {
    return qRound(std::clamp(twips / page::kTwipsPerPixel, -page::kMaxSurfaceHeightPx,
                             page::kMaxSurfaceHeightPx));
}

} // namespace

QPoint placeOf(const page::FieldOperation& field) {
    return {pixels(field.x), pixels(field.y)};
}

QuestionLink::QuestionLink(QWidget* parent) : QAbstractButton(parent) {
    look::setAccessibleRole(*this, QAccessible::Link);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    hide();
}

void QuestionLink::paintRing(QPainter& painter) const {
    if (hasFocus())
        look::drawFrame(painter, rect(), kRingRadius, look::kBlue, Qt::NoBrush, 2);
}

void QuestionLink::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

LinkCaption::LinkCaption(const page::FontBook& fonts, QWidget* parent)
    : QuestionLink(parent), fonts_(fonts) {}

void LinkCaption::show(const page::FieldOperation& field) {
    field_ = field;
    setTag(field.tag);
    setAccessibleName(field.caption.simplified());
    const auto extent = page::captionExtent(field.caption, field.font, fonts_);
    const QSize size(pixels(extent.width) + 1, pixels(extent.height) + 1);
    setGeometry(QRect(placeOf(field), size.boundedTo(kLargestCaption))
                    .adjusted(-kMargin, -kMargin, kMargin, kMargin));
    setVisible(true);
}

/// Draws the letters as the question does, on what the question has drawn there.
void LinkCaption::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // Letters may lean out of their line a little, into the margin.
    page::Recording recording;
    page::LinkOperation label;
    label.surface = field_.surface;
    label.x = label.y = kMargin * page::kTwipsPerPixel;
    label.caption = field_.caption;
    label.font = field_.font;
    label.font.underline = underMouse();
    label.ink = field_.ink;
    for (auto& line : page::captionLines(label, fonts_))
        recording.add(std::move(line));
    output::RasterSurface raster(field_.surface, width(), fonts_, look::kPaper);
    raster.setDevicePixelRatio(devicePixelRatioF());
    raster.play(recording);
    // Darkening leaves the ground of a coloured row in place.
    painter.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
    painter.drawImage(0, 0, raster.image(height()));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    paintRing(painter);
}

LinkIcon::LinkIcon(const QString& drawing, QWidget* parent) : QuestionLink(parent), icon_(drawing) {
    resize(kIconPx + 2 * kMargin, kIconPx + 2 * kMargin);
}

void LinkIcon::show(const page::FieldOperation& field) {
    setTag(field.tag);
    look::setToolTip(*this, field.tooltip);
    move(placeOf(field) - QPoint(kMargin, kMargin));
    setVisible(true);
}

void LinkIcon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (underMouse())
        look::drawFrame(painter, rect().adjusted(1, 1, -1, -1), kRingRadius, look::kHoverTint,
                        QColor::fromRgb(look::kHoverTint));
    icon_.paint(painter, QRectF(kMargin, kMargin, kIconPx, kIconPx), look::Icon::Style::Coloured);
    paintRing(painter);
}

} // namespace exercises
