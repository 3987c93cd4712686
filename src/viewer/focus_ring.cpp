#include "viewer/focus_ring.h"

#include "look/palette.h"
#include "look/pixels.h"

#include <QEvent>
#include <QPainter>

namespace viewer {

namespace {

constexpr double kThickness = 2;
constexpr double kRadius = 3;

} // namespace

FocusRing::FocusRing(QWidget* window) : QWidget(window) {
    setObjectName(QStringLiteral("focusRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusRing::surround(QWidget* control, QSize reach) {
    for (QWidget* part = control_; part && part != parentWidget(); part = part->parentWidget())
        part->removeEventFilter(this);
    control_ = control;
    reach_ = reach;
    for (QWidget* part = control_; part && part != parentWidget(); part = part->parentWidget())
        part->installEventFilter(this);
    fit();
}

void FocusRing::fit() {
    if (!control_ || !control_->isVisibleTo(parentWidget())) {
        hide();
        return;
    }
    const QRect inside = control_->contentsRect();
    const QRect link(control_->mapTo(parentWidget(), inside.topLeft()), inside.size());
    const QRect view = viewOfControl();
    ring_ = widened(link);
    setGeometry(ring_ & widened(view));
    setVisible(link.intersects(view));
    raise();
    update();
}

/// The ring may lie outside the area that the control stands on, as far as it reaches.
QRect FocusRing::widened(const QRect& rect) const {
    return rect.adjusted(-reach_.width(), -reach_.height(), reach_.width(), reach_.height());
}

/// What shows of the area the control stands on, in the window.
QRect FocusRing::viewOfControl() const {
    QRect view = parentWidget()->rect();
    for (QWidget* area = control_->parentWidget(); area && area != parentWidget();
         area = area->parentWidget())
        view &= QRect(area->mapTo(parentWidget(), QPoint()), area->size());
    return view;
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ContentsRectChange:
    case QEvent::Show:
    case QEvent::Hide:
        fit();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent*) {
    using namespace look;
    QPainter painter(this);
    drawFrame(painter, ring_.translated(-pos()), kRadius, kBlue, Qt::NoBrush, kThickness);
}

} // namespace viewer
