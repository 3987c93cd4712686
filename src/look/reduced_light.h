#pragma once

#include <QObject>

namespace look {

/// The light-reduced view, for dark rooms: F12 has all windows of the program shown dark, and F12
/// again as they are. A filter lies over what the windows have painted, so that nobody who paints
/// knows of it; what is printed, copied or written to files never passes through it. It is kept
/// nowhere.
class ReducedLight : public QObject {
public:
    /// Watches the application object, which must be there, for as long as it lives.
    ReducedLight();

    void setOn(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool on_ = false;
};

} // namespace look
