#pragma once

#include <QObject>

class QWidget;

namespace output {

/// Tells long work whether the person wants it to end: with Escape in its window, or by closing
/// that one. Other windows that stand beside it, their menus and hints come and go meanwhile.
class EscapeWatch : public QObject {
public:
    /// `window` must outlive the watch.
    explicit EscapeWatch(const QWidget& window) : window_(window) {}

    /// Lets window messages run. True when one of those that wait asks for the end.
    bool isAsked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QWidget& window_;
    bool asked_ = false;
};

} // namespace output
