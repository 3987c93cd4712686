#include "viewer/link_widget.h"

#include "look/picture_box.h"
#include "look/tool_tip.h"
#include "page/twips.h"
#include "viewer/link_accessible.h"
#include "viewer/link_name.h"

#include <QKeyEvent>
#include <QPainter>

namespace viewer {

LinkWidget::LinkWidget(int index, const page::FontBook& fonts, QWidget* parent)
    : QAbstractButton(parent), index_(index), fonts_(fonts) {
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    hide();
    LinkAccessible::install();
}

void LinkWidget::showLink(const page::LinkOperation& link, look::PictureBox& box) {
    if (&box == box_ && link == link_) {
        arrange(); // the box may have grown
        return;
    }
    if (parentWidget() != &box)
        setParent(&box);
    box_ = &box;
    link_ = link;
    setAccessibleName(linkName(link));
    look::setToolTip(*this, link.tooltip);
    arrange();
    update();
    box.updateMargin();
}

void LinkWidget::freeLink() {
    hide();
    link_ = {};
    look::setToolTip(*this, {});
    setAccessibleName({});
}

void LinkWidget::arrange() {
    using page::kTwipsPerPixel;
    const QRectF area = box_->shownArea();
    const QSizeF size = extent(link_) / kTwipsPerPixel;
    const QPointF corner(link_.x / kTwipsPerPixel + box_->inset(),
                         link_.y / kTwipsPerPixel + box_->inset());
    const QRectF seen = QRectF(corner, size) & area;
    if (seen.isEmpty()) {
        hide();
        return;
    }
    const QRect inside = seen.toAlignedRect();
    const QRect whole = inside.marginsAdded(overhang(link_)) & area.toAlignedRect();
    setGeometry(whole);
    setContentsMargins(inside.left() - whole.left(), inside.top() - whole.top(),
                       whole.right() - inside.right(), whole.bottom() - inside.bottom());
    show();
}

void LinkWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    box_->moveToSurface(painter, pos());
    const double ratio = painter.device()->devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio);
    draw(painter, ratio);
}

void LinkWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            click();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        event->ignore(); // they scroll the page
        return;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

} // namespace viewer
