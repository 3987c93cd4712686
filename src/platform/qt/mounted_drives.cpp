#include "platform/qt/mounted_drives.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#ifndef Q_OS_LINUX
#include <QStorageInfo>
#endif

namespace platform {

namespace {

constexpr QChar kFirstVolumeLetter = u'D';
constexpr QChar kLastLetter = u'Z';
constexpr QChar kCourseDiscLetter = u'C';

#if defined(Q_OS_LINUX)

QStringList mountedVolumes() {
    QFile table(QStringLiteral("/proc/self/mounts"));
    QStringList volumes =
        table.open(QIODevice::ReadOnly) ? volumesIn(table.readAll()) : QStringList();
    // Containers also mount single files. To ask is safe: local file systems keep their top
    // directories in memory.
    volumes.removeIf([](const QString& volume) { return !QFileInfo(volume).isDir(); });
    return volumes;
}

#elif defined(Q_OS_WIN)

QStringList mountedVolumes() {
    QStringList roots;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo& drive : drives)
        roots.append(drive.filePath());
    return roots;
}

#else

QStringList mountedVolumes() {
    QStringList roots;
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo& volume : volumes)
        if (volume.isReady() && volume.device().startsWith("/dev/"))
            roots.append(volume.rootPath());
    return roots;
}

#endif

/// Mount tables write blanks and backslashes in a name as three octal digits ("\040").
QByteArray unescaped(const QByteArray& name) {
    constexpr qsizetype kDigits = 3;
    QByteArray plain;
    for (qsizetype at = 0; at < name.size(); ++at) {
        const QByteArray digits = name.mid(at + 1, kDigits);
        bool isCode = false;
        const uint code = digits.toUInt(&isCode, 8);
        isCode = isCode && name[at] == '\\' && digits.size() == kDigits;
        plain += isCode ? static_cast<char>(code) : name[at];
        if (isCode)
            at += kDigits;
    }
    return plain;
}

std::map<QChar, QString> withSystemDrives(std::map<QChar, QString> taken) {
    const QStringList volumes = mountedVolumes();
#ifdef Q_OS_WIN
    for (const QString& root : volumes)
        taken.emplace(root.front().toUpper(), root);
    return taken;
#else
    return lettersFor(volumes, std::move(taken));
#endif
}

} // namespace

std::map<QChar, QString> lettersFor(const QStringList& volumes, std::map<QChar, QString> taken) {
    auto next = volumes.begin();
    for (QChar letter = kFirstVolumeLetter; letter <= kLastLetter && next != volumes.end();
         letter = QChar(letter.unicode() + 1)) {
        if (taken.emplace(letter, *next).second)
            ++next;
    }
    return taken;
}

QStringList volumesIn(const QByteArray& mountTable) {
    QStringList volumes;
    const QList<QByteArray> lines = mountTable.split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() >= 3 && fields[0].startsWith("/dev/") && fields[0] != "/dev/fuse")
            volumes.append(QFile::decodeName(unescaped(fields[1])));
    }
    return volumes;
}

MountedDrives::MountedDrives(const QString& courseDirectory, std::map<QChar, QString> mappings)
    : mappings_(std::move(mappings)) {
    if (!courseDirectory.isEmpty())
        discDirectory_ = QDir(courseDirectory).filePath(QStringLiteral("disc"));
}

std::map<QChar, QString> MountedDrives::letters() const {
    std::map<QChar, QString> drives = withSystemDrives(mappings_);
    if (!discDirectory_.isEmpty())
        drives.emplace(kCourseDiscLetter, discDirectory_);
    return drives;
}

} // namespace platform
