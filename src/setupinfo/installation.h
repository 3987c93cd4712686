#pragma once

#include <QDate>
#include <QString>
#include <QVersionNumber>

namespace setupinfo {

/// What is known about the copy of the course that runs.
struct Installation {
    QString edition; ///< for whom it is; empty when the status file does not say
    QString type;    ///< how much of it is installed; empty likewise
    QVersionNumber version;
    QDate created; ///< of the program's file; invalid when there is no such file
};

/// Reads the edition and the type from the status file at that path and the date from
/// `programFile`.
Installation readInstallation(const QString& statusFile, const QString& programFile,
                              const QVersionNumber& version);

/// The day, in local time, on which a file was made, or last changed where the file system does not
/// keep the former. Invalid when there is no such file.
QDate creationDate(const QString& file);

/// The description shown to people: lines end with CR LF, the last one with nothing. The month is
/// in French whatever the system speaks.
QString installationText(const Installation& installation);

} // namespace setupinfo
