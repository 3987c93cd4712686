#pragma once

#include <QObject>

namespace platform {

/// Tells long work whether the person wants it to end: with Escape in any window, or by closing a
/// window.
class EscapeWatch : public QObject {
public:
    /// Lets window messages run. True when one of those that wait asks for the end.
    bool isAsked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool asked_ = false;
};

} // namespace platform
