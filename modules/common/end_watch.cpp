#include "common/end_watch.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#endif

namespace common {

#ifdef Q_OS_UNIX

namespace {

// A signal may come at any moment, when next to nothing may be called: it only writes a byte, which
// the event loop reads in its own time.
int sockets[2] = {-1, -1};

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

extern "C" void tellOfSignal(int) {
    const int before = errno;
    const char byte = 1;
    const ssize_t ignored = write(sockets[0], &byte, 1);
    (void)ignored; // a full socket has a byte in it already
    errno = before;
}

void handleSignals(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : kSignals)
        sigaction(signal, &action, nullptr);
}

} // namespace

EndWatch::EndWatch() {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, sockets) != 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(sockets[1], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [] {
        char byte = 0;
        if (read(sockets[1], &byte, 1) == 1)
            QCoreApplication::exit(0);
    });
    handleSignals(tellOfSignal);
}

EndWatch::~EndWatch() {
    if (!notifier_)
        return;
    // From here on the process is ending anyway: a second request must not cut the last write
    // short.
    handleSignals(SIG_IGN);
    notifier_.reset();
    close(sockets[0]);
    close(sockets[1]);
}

#else

EndWatch::EndWatch() = default;
EndWatch::~EndWatch() = default;

#endif

} // namespace common
