#pragma once

#include <QPoint>
#include <QSize>

#include <functional>

namespace exercises {

/// The calculator as the test's window knows it.
class CalculatorBeside {
public:
    virtual ~CalculatorBeside() = default;

    /// Opens it afresh, closing one that is open. `placeFor` tells where the upper left corner of
    /// a window of a size goes, in logical screen pixels.
    virtual void openAfresh(const std::function<QPoint(QSize)>& placeFor) = 0;

    /// Brings one that is open in front of the test, which keeps the keyboard.
    virtual void raise() = 0;
};

} // namespace exercises
