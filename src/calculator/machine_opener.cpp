#include "calculator/machine_opener.h"

namespace calculator {

MachineOpener::~MachineOpener() {
    delete window_;
}

void MachineOpener::open(std::optional<QPoint> place) {
    if (!window_) {
        window_ = new Machine(memory_);
        window_->setAttribute(Qt::WA_DeleteOnClose);
        // The calculator is no reason for the program to go on.
        window_->setAttribute(Qt::WA_QuitOnClose, false);
    }
    if (place)
        window_->move(*place);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

} // namespace calculator
