#include "platform/qt/look/mnemonics.h"

#include "platform/qt/look/button.h"

#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

namespace platform::look {

MnemonicDisplay::MnemonicDisplay(QWidget* window) : QObject(window), window_(window) {
    window->installEventFilter(this);
}

bool MnemonicDisplay::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // A key that the control with the focus has no use for arrives here.
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            show(event->type() == QEvent::KeyPress);
        break;
    case QEvent::WindowDeactivate:
        // Another window gets to know that Alt was let go.
        show(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void MnemonicDisplay::show(bool shown) {
    if (shown == shown_)
        return;
    shown_ = shown;
    for (auto* button : window_->findChildren<QPushButton*>())
        if (auto* painted = dynamic_cast<Button*>(button))
            painted->setMnemonicShown(shown);
}

} // namespace platform::look
