#pragma once

#include <QEvent>
#include <QObject>

namespace look {

/// Marks what a key repeats while it is held down, for everything that is to act once a stroke. The
/// connection to X marks a repetition only when it finds the press in its queue at the moment in
/// which it looks at the release before it, which on a busy machine it mostly does not: but both
/// have the same time.
class HeldKeys : public QObject {
public:
    /// Watches the application object, which must be there, for as long as it lives.
    HeldKeys();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    quint32 releasedKey_ = 0; ///< scan code of the last key let go
    quint64 releasedAt_ = 0;  ///< milliseconds of the window system's clock; 0 before any
};

} // namespace look
