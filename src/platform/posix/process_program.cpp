#include "platform/posix/process_program.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace platform {

namespace {

QString processFile(qint64 pid, const char* name) {
    return QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1String(name));
}

/// Words that end in NUL, as of a command line or an environment.
QByteArrayList wordsOf(qint64 pid, const char* name) {
    QFile file(processFile(pid, name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\0') : QByteArrayList();
}

QString variableOf(qint64 pid, const QByteArray& name) {
    for (const QByteArray& word : wordsOf(pid, "environ")) {
        if (word.startsWith(name + '='))
            return QFile::decodeName(word.mid(name.size() + 1));
    }
    return {};
}

/// "wine", "wine64-preloader" and so on.
bool isWine(const QString& program) {
    return QFileInfo(program).fileName().startsWith(QStringLiteral("wine"));
}

bool hasDrive(const QString& path) {
    return path.size() > 2 && path[1] == u':' && path[0].unicode() < 0x80 && path[0].isLetter();
}

/// Wine keeps its drives as links in its directory: "dosdevices/z:" leads to "/".
QString driveOf(qint64 pid, QChar letter) {
    QString wine = variableOf(pid, "WINEPREFIX");
    if (wine.isEmpty())
        wine = variableOf(pid, "HOME") + QStringLiteral("/.wine");
    return wine + QStringLiteral("/dosdevices/") + letter.toLower() + u':';
}

QString windowsProgramOf(qint64 pid) {
    for (const QByteArray& word : wordsOf(pid, "cmdline")) {
        QString path = QFile::decodeName(word).replace(u'\\', u'/');
        if (path.isEmpty() || isWine(path))
            continue; // its own words come before the program
        if (hasDrive(path))
            path = driveOf(pid, path[0]) + u'/' + path.mid(2);
        // A bare name is that of a file in the directory in which it was started.
        return QDir(processFile(pid, "cwd")).filePath(path);
    }
    return {};
}

} // namespace

QString programOfProcess(qint64 pid) {
    if (pid <= 0)
        return {};
    QString program = QFile::symLinkTarget(processFile(pid, "exe"));
    // What the system writes behind the name of a file that has been replaced since.
    const QString replaced = QStringLiteral(" (deleted)");
    if (program.endsWith(replaced))
        program.chop(replaced.size());
    return isWine(program) ? windowsProgramOf(pid) : program;
}

} // namespace platform
