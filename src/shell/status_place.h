#pragma once

#include "platform/processes.h"

#include <QString>

#include <optional>

namespace shell {

// Where the status file of a course lies. What every sibling program knows is the file in the
// installation directory; but an installed course cannot be written, and two people who use it at
// one time must not see each other's modules. Then each has a file of their own, and the shell
// tells the programs that it starts which file counts.

/// Path of the status file in `installDir`, TEMPKX.TMP in any letter case, whether or not there is
/// one. Absolute.
QString installedStatusFile(const QString& installDir);

/// Path of the person's own status file for the course in `installDir`: in a directory named after
/// the course's, made when needed, under platform::personalDirectory(). Nothing when there is no
/// such place.
std::optional<QString> personalStatusFile(const QString& installDir);

/// The variable ORVALENTE_STATUS_FILE, by which a started program learns of the status file `path`.
/// A program without it takes the one beside itself (modules/README.md).
platform::ProgramVariables statusFileVariable(const QString& path);

} // namespace shell
