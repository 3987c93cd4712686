#include "calculator/machine_opener.h"

#include <QWindow>

#include <utility>

namespace calculator {

MachineOpener::~MachineOpener() {
    delete window_;
}

void MachineOpener::make() {
    window_ = new Machine(memory_);
    window_->setAttribute(Qt::WA_DeleteOnClose);
    // The calculator is no reason for the program to go on.
    window_->setAttribute(Qt::WA_QuitOnClose, false);
}

void MachineOpener::open(std::optional<QPoint> place) {
    if (!window_)
        make();
    if (place)
        window_->move(*place);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void MachineOpener::openAfresh(const std::function<QPoint(QSize)>& placeFor, QWindow* before) {
    // One in the middle of an evaluation goes when that has ended.
    if (Machine* const old = std::exchange(window_, nullptr))
        old->close();
    make();
    keepBefore(before);
    open(placeFor(window_->size()));
}

void MachineOpener::keepBefore(QWindow* before) {
    if (!window_)
        return;
    window_->winId(); // makes the window that the window system knows
    if (window_->windowHandle()->transientParent() == before)
        return;
    // The window manager looks at it when the window appears.
    const bool shown = window_->isVisible();
    const QPoint place = window_->pos();
    window_->hide();
    window_->windowHandle()->setTransientParent(before);
    if (shown) {
        window_->setAttribute(Qt::WA_ShowWithoutActivating);
        window_->move(place);
        window_->show();
        window_->setAttribute(Qt::WA_ShowWithoutActivating, false);
    }
}

} // namespace calculator
