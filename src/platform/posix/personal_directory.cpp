#include "platform/personal_directory.h"

#include <QDir>
#include <QFileInfo>

#include <unistd.h>

namespace platform {

namespace {

bool belongsToThePersonAlone(const QString& directory) {
    const QFileInfo info(directory);
    return info.isAbsolute() && info.isDir() && info.ownerId() == geteuid() &&
           !info.permission(QFile::WriteGroup) && !info.permission(QFile::WriteOther);
}

QString stateDirectory() {
    const QString named = qEnvironmentVariable("XDG_STATE_HOME");
    if (QDir::isAbsolutePath(named)) {
        makePersonalFolder(named);
        return named;
    }
    QString directory = QDir::homePath();
    for (const char* folder : {"/.local", "/state"}) {
        directory += QLatin1String(folder);
        makePersonalFolder(directory);
    }
    return directory;
}

} // namespace

QString personalDirectory() {
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (belongsToThePersonAlone(session))
        return session;
    const QString state = stateDirectory();
    return belongsToThePersonAlone(state) ? state : QString();
}

bool makePersonalFolder(const QString& path) {
    return QFileInfo(path).isDir() ||
           QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace platform
