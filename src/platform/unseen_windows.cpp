#include "platform/unseen_windows.h"

#include <utility>

namespace platform {

UnseenWindows::UnseenWindows(WindowActivator& inner, Left left)
    : inner_(inner), left_(std::move(left)) {}

bool UnseenWindows::activate(qint64 pid, const QString& programName) {
    const bool before = asked_.contains(pid);
    asked_.insert(pid);
    if (inner_.activate(pid, programName) || !before)
        return true;
    left_(programName);
    return false;
}

} // namespace platform
