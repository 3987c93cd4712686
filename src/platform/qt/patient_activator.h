#pragma once

#include "platform/processes.h"

#include <QSet>
#include <QTimer>

#include <chrono>
#include <functional>

namespace platform {

/// Activates windows that are still to come: a program just started has no window yet. What
/// `inner` cannot find at once is looked for again for a while, unless a window of that process has
/// been there before; a newer request replaces an older one. Needs a running event loop.
class PatientActivator : public WindowActivator {
public:
    /// A window of a slow program, started through Wine from a disc, takes seconds to appear.
    static constexpr std::chrono::milliseconds kPatience{10'000};
    static constexpr std::chrono::milliseconds kInterval{250};

    /// Called with the program's file name when its window is not looked for any longer.
    using GivenUp = std::function<void(const QString&)>;

    explicit PatientActivator(WindowActivator& inner, GivenUp givenUp = {});

    /// True when the window was there at once.
    bool activate(qint64 pid, const QString& programName) override;

private:
    bool tryNow();
    void tryAgain();
    void giveUp();

    WindowActivator& inner_;
    GivenUp givenUp_;
    QSet<qint64> seen_; ///< processes that have had a window
    QTimer timer_;
    qint64 pid_ = 0;
    QString programName_;
    int triesLeft_ = 0;
};

} // namespace platform
