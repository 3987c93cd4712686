#pragma once

#include "coursetool/report.h"
#include "publish/film_cache.h"
#include "publish/site_folder.h"

#include <QHash>
#include <QJsonObject>
#include <QString>

namespace publish {

/// The films of a course, converted for browsers (WebM with VP9) by ffmpeg, each once. One that the
/// site or the cache has from an earlier publishing is taken over.
class Films {
public:
    /// `course` is the folder that they are looked for in.
    Films(QString course, SiteFolder& site, coursetool::Report& report);

    /// The film that a page names: "fichier", "images" (how many) and "cadence" (images a second);
    /// or "absence", a sentence that says what is missing.
    QJsonObject film(const QString& name);

private:
    QJsonObject converted(const QString& path, const QString& name);
    QJsonObject absent(const QString& name, const QString& why);
    QString put(const QString& path, const QByteArray& hash, const QString& target);
    QByteArray convert(const QString& path) const;

    QString course_;
    SiteFolder& site_;
    coursetool::Report& report_;
    FilmCache cache_;
    QString ffmpeg_; ///< empty when it is not installed
    QHash<QString, QJsonObject> known_;
};

} // namespace publish
