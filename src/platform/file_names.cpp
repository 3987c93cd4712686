#include "platform/file_names.h"

#include "files/within.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace platform {

namespace {

bool hasDrivePrefix(const QString& name) {
    return name.size() >= 2 && name[1] == u':' && name[0].unicode() < 0x80 && name[0].isLetter();
}

using IsWithin = bool (*)(const std::filesystem::path& entry,
                          const std::filesystem::path& directory);

std::optional<QString> findEntry(const QString& directory, const QString& name, QDir::Filter kind,
                                 IsWithin isWithin, const QString& bounds) {
    const std::filesystem::path top = standardPath(bounds);
    const auto isThere = [&](const QString& path) { return isWithin(standardPath(path), top); };
    // An empty directory would mean the current one, which is nobody's choice.
    if (directory.isEmpty() || name.isEmpty() || lastComponent(name) != name)
        return std::nullopt;
    const QDir folder(directory);
    // The exact name saves listing the folder, which takes long where it is large.
    if (isThere(folder.filePath(name)))
        return folder.filePath(name);

    // No name filters: brackets and asterisks in a name are to be taken literally.
    const QStringList entries = folder.entryList(kind | QDir::Hidden | QDir::System, QDir::Name);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0 && isThere(folder.filePath(entry)))
            return folder.filePath(entry);
    }
    return std::nullopt;
}

} // namespace

QString lastComponent(const QString& name) {
    QString rest = name.left(name.indexOf(QChar(u'\0')));
    const qsizetype separator = std::max(rest.lastIndexOf(u'\\'), rest.lastIndexOf(u'/'));
    rest.remove(0, separator + 1);
    if (hasDrivePrefix(rest))
        rest.remove(0, 2);
    // Some systems ignore blanks around a name, so ". " would be the directory as well.
    const QString core = rest.trimmed();
    if (core.isEmpty() || core == QStringLiteral(".") || core == QStringLiteral(".."))
        return {};
    return rest;
}

std::filesystem::path standardPath(const QString& path) {
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

std::optional<QString> findWithoutCase(const QString& directory, const QString& name,
                                       const QString& bounds) {
    return findEntry(directory, name, QDir::Files, &files::isFileWithin,
                     bounds.isEmpty() ? directory : bounds);
}

std::optional<QString> findFolderWithoutCase(const QString& directory, const QString& name) {
    return findEntry(directory, name, QDir::Dirs, &files::isDirectoryWithin, directory);
}

} // namespace platform
