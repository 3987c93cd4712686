#pragma once

#include "calculator/machine.h"

#include <QPoint>
#include <QPointer>
#include <QSize>

#include <functional>
#include <optional>

class QWindow;

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
    /// a size. It stays in front of `before`, which may be modal, unless that is null.
    void openAfresh(const std::function<QPoint(QSize)>& placeFor, QWindow* before);

    /// Lets a window already open stay in front of `before` from now on; null: of none.
    void keepBefore(QWindow* before);

    /// The window, null while there is none.
    Machine* window() const { return window_; }

private:
    void make();

    Memory& memory_;
    QPointer<Machine> window_;
};

} // namespace calculator
