#include "common/status_record.h"

#include "platform/file_names.h"
#include "shell/status_file.h"
#include "shell/status_place.h"

#include <QDir>

namespace common {

namespace {

using shell::StatusFile;

StatusFile statusFile(const QString& directory) {
    const QString handed = qEnvironmentVariable("ORVALENTE_STATUS_FILE");
    const QString path =
        QDir::isAbsolutePath(handed) ? handed : shell::installedStatusFile(directory + u'/');
    return StatusFile(path, StatusFile::Missing::StaysAway);
}

} // namespace

bool StatusRecord::setRunning(bool running) const {
    return statusFile(directory_)
        .write(module_, running ? QStringLiteral("OUI") : QStringLiteral("NON"));
}

QString StatusRecord::exercise() const {
    const QString name = statusFile(directory_).read(StatusFile::kArgumentRecord).trimmed();
    // What the shell writes when it starts: no exercise has been asked for yet.
    if (name == QStringLiteral("NON"))
        return {};
    // Only files beside the program are opened, whatever the record says.
    return platform::lastComponent(name);
}

QString StatusRecord::edition() const {
    return statusFile(directory_).read(StatusFile::kEditionRecord).trimmed();
}

} // namespace common
