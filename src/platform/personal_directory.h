#pragma once

#include <QString>

namespace platform {

/// A directory for what programs of one person keep for each other while they run, which belongs to
/// the person who runs this program and which nobody else may write. The first that is so of
///   - XDG_RUNTIME_DIR, which lives as long as the person's session,
///   - XDG_STATE_HOME, by default ~/.local/state (made when it is missing),
/// both of the XDG Base Directory Specification 0.8; on Windows the local application data. Empty
/// when there is none.
QString personalDirectory();

/// Makes the directory `path`, for its owner alone, in one that exists. False when it is not there
/// afterwards.
bool makePersonalFolder(const QString& path);

} // namespace platform
