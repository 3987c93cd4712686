#pragma once

#include <QtGlobal>

namespace platform {

/// Whether `pid` is this process or one that it descends from: a terminal, a desktop. To end one of
/// those may end this process too.
bool isOwnProcessOrAncestor(qint64 pid);

/// Asks the process `pid` to end (SIGTERM), which it can answer as it likes. False, and nothing
/// else, when there is no such process, when it belongs to somebody else, and for what is the
/// identifier of no single program: 0, 1 and numbers that no process has. Negative ones would mean
/// whole groups of processes.
bool askToEnd(qint64 pid);

} // namespace platform
