#include "look/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace look {

HeldKeys::HeldKeys() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    // From the window on, the events are the toolkit's own.
    if ((!press && event->type() != QEvent::KeyRelease) || !watched->isWindowType())
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (!press) {
        releasedKey_ = key.nativeScanCode();
        releasedAt_ = key.timestamp();
        return false;
    }
    if (key.isAutoRepeat() || releasedAt_ == 0 || key.timestamp() != releasedAt_ ||
        key.nativeScanCode() != releasedKey_)
        return false;
    QKeyEvent marked(event->type(), key.key(), key.modifiers(), key.nativeScanCode(),
                     key.nativeVirtualKey(), key.nativeModifiers(), key.text(), true,
                     static_cast<quint16>(key.count()));
    marked.setTimestamp(key.timestamp());
    QCoreApplication::sendEvent(watched, &marked);
    event->setAccepted(marked.isAccepted());
    return true;
}

} // namespace look
