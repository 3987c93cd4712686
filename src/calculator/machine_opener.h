#pragma once

#include "calculator/machine.h"

#include <QPoint>
#include <QPointer>
#include <QSize>

#include <functional>
#include <optional>

namespace calculator {

/// Opens the calculator. Each opening after a closing is a new window; only the memory stays. One
/// that is open already comes to the front.
class MachineOpener {
public:
    explicit MachineOpener(Memory& memory) : memory_(memory) {}
    ~MachineOpener();

    /// `place` is the upper left corner of the window with its frame, in logical screen pixels;
    /// without one the window system chooses, and a window already open stays where it is.
    void open(std::optional<QPoint> place = std::nullopt);

    /// Opens it anew, a window already open being closed. `placeFor` gives the place of a window of
    /// a size.
    void openAfresh(const std::function<QPoint(QSize)>& placeFor);

    /// Puts a window already open in front of all others; the keyboard stays where it is.
    void raise();

    /// The window, null while there is none.
    Machine* window() const { return window_; }

private:
    void make();

    Memory& memory_;
    QPointer<Machine> window_;
};

} // namespace calculator
