#pragma once

#include "platform/processes.h"

#include <QSet>

#include <functional>

namespace platform {

/// Activates windows on a desktop that tells no program of the windows of others (Wayland): those
/// that go through X11 all the same are `inner`'s to find; any other comes by itself when its
/// program starts, and nobody can bring it to the front again.
class UnseenWindows : public WindowActivator {
public:
    /// Called with the program's file name when its window stays where it is.
    using Left = std::function<void(const QString&)>;

    UnseenWindows(WindowActivator& inner, Left left);

    /// True when a window was found, or is coming with the program that has just been started.
    bool activate(qint64 pid, const QString& programName) override;

private:
    WindowActivator& inner_;
    Left left_;
    QSet<qint64> asked_; ///< processes whose window was asked for before
};

} // namespace platform
