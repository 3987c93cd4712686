#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace common {

/// Ends the application in good order when the system asks the process to end: SIGTERM, SIGINT and
/// SIGHUP leave the event loop with exit code 0. On Windows a posted quit does so by itself, and
/// this does nothing. One at a time.
class EndWatch : public QObject {
public:
    EndWatch();
    ~EndWatch() override;

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace common
