#include "calculator/machine_opener.h"

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
    if (window_->isMinimized())
        window_->showNormal();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void MachineOpener::openAfresh(const std::function<QPoint(QSize)>& placeFor) {
    // One in the middle of an evaluation goes when that has ended.
    if (Machine* const old = std::exchange(window_, nullptr))
        old->close();
    make();
    open(placeFor(window_->size()));
}

void MachineOpener::raise() {
    if (window_)
        window_->raise();
}

} // namespace calculator
