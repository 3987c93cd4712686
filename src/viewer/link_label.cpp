#include "viewer/link_label.h"

#include "output/raster/operation_painter.h"
#include "page/link_view.h"
#include "page/twips.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace viewer {

namespace {

// How far letters lean out of the box that measures them, in parts of their square: accents on
// capitals, the tail of "j", the end of a slanted "f".
constexpr double kAbove = 1 / 8.0;
constexpr double kAround = 1 / 12.0;
constexpr double kBesideSlanted = 1 / 4.0;

} // namespace

LinkLabel::LinkLabel(int index, const page::FontBook& fonts, QWidget* parent)
    : LinkWidget(index, fonts, parent) {
    setObjectName(QStringLiteral("Labelien(%1)").arg(index));
}

QSizeF LinkLabel::extent(const page::LinkOperation& link) const {
    const auto caption = page::captionExtent(link.caption, link.font, fonts());
    return {std::min(caption.width, link.width), caption.height};
}

QMargins LinkLabel::overhang(const page::LinkOperation& link) const {
    const int square = page::fontPixels(link.font.points);
    const int above = qCeil(square * kAbove);
    const int around = qCeil(square * kAround);
    const int right = link.font.italic ? qCeil(square * kBesideSlanted) : around;
    return {around, above, right, around};
}

void LinkLabel::draw(QPainter& painter, double ratio) {
    // Bold letters that are wider than the place on the page stand closer and narrower there:
    // nothing that follows is covered.
    const double letters = page::captionExtent(link().caption, link().font, fonts()).width;
    if (letters > link().width) {
        const double left = link().x / page::kTwipsPerPixel * ratio;
        painter.translate(left, 0);
        painter.scale(link().width / letters, 1);
        painter.translate(-left, 0);
    }
    output::OperationPainter operations(painter, fonts(), ratio);
    for (const page::TextOperation& line : page::captionLines(link(), fonts()))
        if (operations.span(line))
            operations.draw(line);
}

void LinkLabel::mouseMoveEvent(QMouseEvent* event) {
    LinkWidget::mouseMoveEvent(event);
    event->accept(); // passed on to the page area, it would take the highlight off again
}

} // namespace viewer
