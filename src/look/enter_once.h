#pragma once

#include <QObject>

namespace look {

/// Keeps from a window what Enter repeats while it is held down: one stroke acts once. Otherwise
/// the stroke that opens a window would press that window's main button too, and the one that ends
/// an entry would go on with the empty one. A control that takes Enter itself is not kept from it.
class EnterOnce : public QObject {
public:
    /// Watches `window` for as long as it lives.
    explicit EnterOnce(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace look
