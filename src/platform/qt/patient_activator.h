#pragma once

#include "platform/processes.h"

#include <QTimer>

#include <chrono>

namespace platform {

/// Activates windows that are still to come: a program just started has no window yet. What
/// `inner` cannot find at once is looked for again for a while; a newer request replaces an older
/// one. Needs a running event loop.
class PatientActivator : public WindowActivator {
public:
    /// A window of a slow program, started through Wine from a disc, takes seconds to appear.
    static constexpr std::chrono::milliseconds kPatience{10'000};
    static constexpr std::chrono::milliseconds kInterval{250};

    explicit PatientActivator(WindowActivator& inner);

    /// True when the window was there at once.
    bool activate(qint64 pid, const QString& programName) override;

private:
    void tryAgain();

    WindowActivator& inner_;
    QTimer timer_;
    qint64 pid_ = 0;
    QString programName_;
    int triesLeft_ = 0;
};

} // namespace platform
