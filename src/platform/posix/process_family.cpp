#include "platform/posix/process_family.h"

#include <QByteArray>
#include <QFile>

#include <signal.h>
#include <unistd.h>

#include <limits>

namespace platform {

namespace {

/// The first process of the system, which all others descend from.
constexpr qint64 kFirstProcess = 1;

/// More generations than a desktop has: the processes are looked at one by one while others come
/// and go, so that the way up might lead in a circle.
constexpr int kMostGenerations = 256;

/// Parent of the process `pid`; 0 when it cannot be told.
qint64 parentOf(qint64 pid) {
    if (pid == getpid())
        return getppid();
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    // "pid (name) state parent …": the name may hold anything, brackets and blanks included.
    const QByteArray line = file.readLine(4096);
    return line.mid(line.lastIndexOf(')') + 1).simplified().split(' ').value(1).toLongLong();
}

} // namespace

bool isOwnProcessOrAncestor(qint64 pid) {
    qint64 member = getpid();
    for (int i = 0; i < kMostGenerations && member >= kFirstProcess; ++i) {
        if (member == pid)
            return true;
        member = parentOf(member);
    }
    return false;
}

bool askToEnd(qint64 pid) {
    if (pid <= kFirstProcess || pid > std::numeric_limits<pid_t>::max())
        return false;
    return kill(static_cast<pid_t>(pid), SIGTERM) == 0;
}

} // namespace platform
