#include "publish/films.h"

#include "coursetool/paths.h"
#include "files/within.h"
#include "platform/avi_header.h"
#include "platform/file_names.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace publish {

namespace {

/// Groups of 12 images: a step back takes some milliseconds, a film little more than half of what
/// it was. Part of the name of what was made with it.
const QStringList& settings() {
    static const QStringList kSettings{
        QStringLiteral("-c:v"),     QStringLiteral("libvpx-vp9"), QStringLiteral("-g"),
        QStringLiteral("12"),       QStringLiteral("-crf"),       QStringLiteral("32"),
        QStringLiteral("-b:v"),     QStringLiteral("0"),          QStringLiteral("-deadline"),
        QStringLiteral("good"),     QStringLiteral("-cpu-used"),  QStringLiteral("3"),
        QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),    QStringLiteral("-c:a"),
        QStringLiteral("libopus"),  QStringLiteral("-f"),         QStringLiteral("webm")};
    return kSettings;
}

/// A film of a minute takes about half a minute; what takes longer than this is none of a course.
constexpr int kLongestMs = 20 * 60 * 1000;

QByteArray hashOf(QFile& file) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(settings().join(u' ').toUtf8());
    hash.addData(&file);
    return hash.result().toHex();
}

/// Letters that are the same in every system's file names and in addresses.
QString plainName(const QString& name) {
    QString plain;
    for (const QChar c : QFileInfo(name).completeBaseName().toLower())
        plain += (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') ? c : QChar(u'-');
    return plain;
}

} // namespace

Films::Films(QString course, SiteFolder& site, coursetool::Report& report)
    : course_(std::move(course)), site_(site), report_(report),
      ffmpeg_(QStandardPaths::findExecutable(QStringLiteral("ffmpeg"))) {}

QJsonObject Films::film(const QString& name) {
    const QString fileName = platform::lastComponent(name);
    const auto known = known_.constFind(fileName);
    if (known != known_.constEnd())
        return *known;
    const auto path = platform::findWithoutCase(course_, fileName);
    const bool isThere = path && files::isFileWithin(coursetool::pathFrom(path->toStdString()),
                                                     coursetool::pathFrom(course_.toStdString()));
    const QJsonObject film =
        isThere ? converted(*path, fileName)
                : absent(fileName, QStringLiteral("ce film n’est pas dans le cours"));
    known_.insert(fileName, film);
    return film;
}

QJsonObject Films::absent(const QString& name, const QString& why) {
    report_.warning({course_.toStdString()},
                    coursetool::inQuotes(name.toStdString()) + " : " + why.toStdString());
    return {{QStringLiteral("absence"),
             QStringLiteral("Ce film n’a pas été publié\u00A0: ") + why + u'.'}};
}

QJsonObject Films::converted(const QString& path, const QString& name) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return absent(name, QStringLiteral("il ne peut pas être lu"));
    const QByteArray start = file.read(platform::kAviHeaderBytes);
    const auto header = platform::readAviHeader(
        std::as_bytes(std::span(start.constData(), static_cast<std::size_t>(start.size()))));
    if (!header || header->framesPerSecond == 0 || header->frames == 0)
        return absent(name, QStringLiteral("ce n’est pas un film AVI lisible"));
    file.seek(0);
    const QByteArray hash = hashOf(file);
    const QString target =
        QStringLiteral("films/%1-%2.webm").arg(plainName(name), QLatin1String(hash.first(10)));
    if (site_.has(target))
        site_.keep(target);
    else if (const QString why = put(path, hash, target); !why.isEmpty())
        return absent(name, why);
    return {{QStringLiteral("fichier"), target},
            {QStringLiteral("images"), header->frames},
            {QStringLiteral("cadence"), header->framesPerSecond}};
}

/// Puts the film into the site; gives why it could not.
QString Films::put(const QString& path, const QByteArray& hash, const QString& target) {
    std::optional<QByteArray> film = cache_.find(hash);
    if (!film) {
        if (ffmpeg_.isEmpty())
            return QStringLiteral("il manque ffmpeg pour le convertir");
        film = convert(path);
        if (film->isEmpty())
            return QStringLiteral("ffmpeg n’a pas pu le convertir");
        cache_.keep(hash, *film);
    }
    return site_.write(target, *film) ? QString() : QStringLiteral("il n’a pas pu être écrit");
}

/// The converted film; empty when ffmpeg could not.
QByteArray Films::convert(const QString& path) const {
    const QTemporaryDir folder;
    QFile film(folder.filePath(QStringLiteral("film.webm")));
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    // "file:" keeps a name from being taken for an address.
    process.start(ffmpeg_,
                  QStringList{QStringLiteral("-nostdin"), QStringLiteral("-y"),
                              QStringLiteral("-protocol_whitelist"), QStringLiteral("file"),
                              QStringLiteral("-i"), QStringLiteral("file:") + path} +
                      settings() + QStringList{QStringLiteral("file:") + film.fileName()});
    if (!process.waitForFinished(kLongestMs)) {
        process.kill();
        process.waitForFinished();
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
        !film.open(QIODevice::ReadOnly))
        return {};
    return film.readAll();
}

} // namespace publish
