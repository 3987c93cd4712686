#pragma once

#include <QString>

namespace common {

/// A module's side of the status file TEMPKX.TMP, which the shell and its modules share: records of
/// 128 bytes numbered from 1, each a 16-bit little-endian length and as many Windows-1252 bytes.
/// There is no lock; the file is opened for each call and closed at its end.
///
/// The shell tells the modules that it starts where the file is (the variable
/// ORVALENTE_STATUS_FILE, a path): a course that cannot be written has none of its own. A module
/// started otherwise takes the one beside itself. A link, a pipe or a device of this name is
/// neither read nor written, nor is a file of another person's or with a second name.
///
/// Whatever state the file is in, nothing here fails loudly: a file that is not there or cannot be
/// written is left as it is, and a record that is missing or makes no sense is the empty text.
class StatusRecord {
public:
    static constexpr int kExerciseRecord = 31; ///< what the module that starts is to open
    static constexpr int kEditionRecord = 32;
    static constexpr int kRecordLength = 128; ///< bytes

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
    QString path() const;
    QString read(int record) const;

    QString directory_;
    int module_;
};

} // namespace common
