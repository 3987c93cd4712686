#pragma once

#include <QPoint>
#include <QSize>

#include <functional>

class QWindow;

namespace exercises {

/// The calculator as the test's window knows it.
class CalculatorBeside {
public:
    virtual ~CalculatorBeside() = default;

    /// Opens it afresh, closing one that is open. `placeFor` tells where the upper left corner of
    /// a window of a size goes, in logical screen pixels. It stays in front of `before`.
    virtual void openAfresh(const std::function<QPoint(QSize)>& placeFor, QWindow* before) = 0;

    /// Keeps one that is open in front of `before` from now on; null: in front of none.
    virtual void keepBefore(QWindow* before) = 0;
};

} // namespace exercises
