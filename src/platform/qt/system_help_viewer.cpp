#include "platform/qt/system_help_viewer.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace platform {

bool SystemHelpViewer::show(const QString& file) {
    // Wine would open a second window.
    if (pid_ != 0 && activator_.activate(pid_, QStringLiteral("winhlp32.exe")))
        return true;
    const QString wine = QStandardPaths::findExecutable(QStringLiteral("wine"));
    if (wine.isEmpty())
        return false;
    const QFileInfo help(file);
    return QProcess::startDetached(wine, {QStringLiteral("winhlp32"), help.absoluteFilePath()},
                                   help.absolutePath(), &pid_);
}

} // namespace platform
