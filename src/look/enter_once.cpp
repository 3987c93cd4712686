#include "look/enter_once.h"

#include <QKeyEvent>
#include <QWidget>

namespace look {

EnterOnce::EnterOnce(QWidget* window) : QObject(window) {
    window->installEventFilter(this);
}

bool EnterOnce::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.isAutoRepeat() && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter))
            return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace look
