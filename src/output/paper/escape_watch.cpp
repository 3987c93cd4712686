#include "output/paper/escape_watch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace output {

bool EscapeWatch::isAsked() {
    asked_ = false;
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    return asked_;
}

bool EscapeWatch::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType() || static_cast<QWidget*>(watched)->window() != &window_)
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        asked_ = true;
        return true;
    }
    if (event->type() == QEvent::Close && watched == &window_)
        asked_ = true;
    return QObject::eventFilter(watched, event);
}

} // namespace output
