#include "platform/personal_directory.h"

#include <QDir>
#include <QStandardPaths>

namespace platform {

QString personalDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

/// What a profile holds is its person's alone by itself.
bool makePersonalFolder(const QString& path) {
    return QDir().mkpath(path);
}

} // namespace platform
