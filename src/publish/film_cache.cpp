#include "publish/film_cache.h"

#include "coursetool/paths.h"
#include "files/whole_file.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace publish {

FilmCache::FilmCache()
    : FilmCache(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                QStringLiteral("/orvalente-cours/films")) {}

FilmCache::FilmCache(QString folder, qint64 mostBytes)
    : folder_(std::move(folder)), mostBytes_(mostBytes) {}

std::optional<QByteArray> FilmCache::find(const QByteArray& hash) const {
    QFile file(pathOf(hash));
    // For writing too: it is marked as used now.
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return std::nullopt;
    file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
    return file.readAll();
}

void FilmCache::keep(const QByteArray& hash, const QByteArray& film) const {
    if (film.size() > mostBytes_ || !QDir().mkpath(folder_))
        return;
    files::WholeFile file(coursetool::pathFrom(pathOf(hash).toStdString()));
    if (file.write(std::string_view(film.constData(), static_cast<std::size_t>(film.size()))) &&
        file.putInPlace())
        makeRoom();
}

void FilmCache::makeRoom() const {
    qint64 bytes = 0;
    for (const QFileInfo& film :
         QDir(folder_).entryInfoList({QStringLiteral("*.webm")}, QDir::Files | QDir::NoSymLinks,
                                     QDir::Time)) { // the newest first
        bytes += film.size();
        if (bytes > mostBytes_)
            QFile::remove(film.filePath());
    }
}

QString FilmCache::pathOf(const QByteArray& hash) const {
    return folder_ + u'/' + QString::fromLatin1(hash) + QStringLiteral(".webm");
}

} // namespace publish
