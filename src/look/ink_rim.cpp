#include "look/ink_rim.h"

#include "look/picture_box.h"
#include "look/surface_control.h"
#include "page/ink_area.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

namespace look {

namespace {

constexpr int kMarginPx = static_cast<int>(page::kInkMargin / page::kTwipsPerPixel);

} // namespace

InkRim::InkRim(PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    lower();
    box_.setRim(this);
    box_.installEventFilter(this);
    box_.parentWidget()->installEventFilter(this);
    follow();
}

void InkRim::follow() {
    const QWidget* const view = box_.parentWidget();
    const QRect place = box_.geometry();
    QRect shown = place.adjusted(-kMarginPx, -kMarginPx, kMarginPx, kMarginPx);
    if (place.top() < 0)
        shown.setTop(0);
    if (place.bottom() >= view->height())
        shown.setBottom(view->height() - 1);
    setGeometry({view->mapTo(parentWidget(), shown.topLeft()), shown.size()});
    update();
}

bool InkRim::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        follow();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void InkRim::paintEvent(QPaintEvent* event) {
    if (!box_.isVisible())
        return;
    QPainter painter(this);
    const QPoint corner = box_.mapFrom(parentWidget(), pos());
    box_.moveToSurface(painter, corner);
    const double ratio = painter.device()->devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio);
    box_.paintMargin(painter, event->rect().translated(corner));
    // The captions of links belong to the page as its text does. The box covers the rest of them.
    for (QWidget* child : box_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (auto* control = dynamic_cast<SurfaceControl*>(child); control && child->isVisible())
            control->drawOn(painter, ratio);
}

} // namespace look
