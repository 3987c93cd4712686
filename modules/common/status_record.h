#pragma once

#include <QString>

namespace common {

/// A module's side of the status file that the shell and its modules share (shell/status_file.h).
///
/// The shell tells the modules that it starts where the file is (the variable
/// ORVALENTE_STATUS_FILE, a path): a course that cannot be written has none of its own. A module
/// started otherwise takes the one beside itself.
///
/// Whatever state the file is in, nothing here fails loudly: a file that is not there or cannot be
/// written is left as it is, and a record that is missing or makes no sense is the empty text.
class StatusRecord {
public:
    /// `directory` is where the file lies (its name is found in any letter case) when the shell did
    /// not name another; `module` is 1 to 30.
    StatusRecord(const QString& directory, int module) : directory_(directory), module_(module) {}

    /// Writes "OUI" or "NON" into the module's own record, and into no other. A missing file is not
    /// made: then there is no shell that would ask. False when nothing could be written.
    bool setRunning(bool running) const;

    /// Bare file name of the exercise to open; empty for none.
    QString exercise() const;

    /// What the course calls its edition; may be empty.
    QString edition() const;

private:
    QString directory_;
    int module_;
};

} // namespace common
