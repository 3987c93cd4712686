#include "platform/qt/mounted_drives.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace platform {

namespace {

constexpr QChar kFirstVolumeLetter = u'D';
constexpr QChar kLastLetter = u'Z';
constexpr QChar kCourseDiscLetter = u'C';

bool isLetter(QChar c) {
    return c >= u'A' && c <= kLastLetter;
}

/// Whether a person would call it a drive: a device with a directory on it. Containers also mount
/// single files, and every system mounts much that no device is behind.
bool isDrive(const QStorageInfo& volume) {
    if (!volume.isValid() || !volume.isReady() || !QFileInfo(volume.rootPath()).isDir())
        return false;
#ifdef Q_OS_WIN
    return true;
#else
    return volume.device().startsWith("/dev/");
#endif
}

QStringList mountedVolumes() {
    QStringList roots;
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo& volume : volumes) {
        if (isDrive(volume))
            roots.append(volume.rootPath());
    }
    return roots;
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

std::optional<DriveMapping> parseDriveMapping(const QString& option) {
    if (option.size() < 3 || option[1] != u'=')
        return std::nullopt;
    const QChar letter = option[0].toUpper();
    if (!isLetter(letter))
        return std::nullopt;
    return DriveMapping(letter, option.mid(2));
}

std::map<QChar, QString> lettersFor(const QStringList& volumes, std::map<QChar, QString> taken) {
    auto next = volumes.begin();
    for (QChar letter = kFirstVolumeLetter; letter <= kLastLetter && next != volumes.end();
         letter = QChar(letter.unicode() + 1)) {
        if (taken.emplace(letter, *next).second)
            ++next;
    }
    return taken;
}

MountedDrives::MountedDrives(const QString& courseDirectory, std::map<QChar, QString> mappings)
    : discDirectory_(QDir(courseDirectory).filePath(QStringLiteral("disc"))),
      mappings_(std::move(mappings)) {}

std::map<QChar, QString> MountedDrives::ready() const {
    std::map<QChar, QString> drives = withSystemDrives(mappings_);
    drives.emplace(kCourseDiscLetter, discDirectory_);
    std::erase_if(drives, [](const auto& drive) { return !QFileInfo(drive.second).isDir(); });
    return drives;
}

} // namespace platform
