#include "check/file_checks.h"

#include "check/directive_shape.h"
#include "check/walk.h"
#include "coursetool/paths.h"
#include "markup/directives.h"
#include "platform/file_names.h"
#include "viewer/video_menu.h"

#include <QFileInfo>

#include <set>

namespace check {

namespace {

/// The picture that a line names, as it is written; empty for none.
QStringView pictureNamed(const Line& line) {
    if (line.runs(markup::pictureOverText, markup::pictureAboveText))
        return line.argument();
    if (line.runs(markup::pictureOfGivenSize) && isWellShaped(line.directive))
        return line.argument().chopped(markup::kPictureSizeLength);
    return {};
}

/// The video that a line names; empty for none, and for a menu of films.
QStringView videoNamed(const Line& line) {
    const bool isFilm = line.runs(markup::pageVideo) &&
                        viewer::videoMenuCaptions(line.argument().toString()).isEmpty();
    return isFilm ? line.argument() : QStringView();
}

/// Its path, as the player of videos looks for it; empty when it is nowhere.
QString videoPath(const Course& course, QStringView name) {
    const QString file = platform::lastComponent(name.toString());
    const QString beside = QString::fromStdString(coursetool::shown(course.filesFolder));
    if (const auto installed = platform::findWithoutCase(beside, file))
        return *installed;
    const QString disc = QString::fromStdString(coursetool::shown(course.discFolder));
    const auto folder = platform::findFolderWithoutCase(disc, QStringLiteral("ZEKXV"));
    return folder ? platform::findWithoutCase(*folder, file).value_or(QString()) : QString();
}

template <class Visit>
void forEachPicture(const Course& course, Visit visit) {
    forEachLine(course, [&](const Source& source, const Line& line) {
        const QStringView name = pictureNamed(line);
        if (!name.trimmed().isEmpty())
            visit(source, line, name, course.pictures->locatePicture(name.toString()));
    });
}

template <class Visit>
void forEachVideo(const Course& course, Visit visit) {
    forEachLine(course, [&](const Source& source, const Line& line) {
        const QStringView name = videoNamed(line);
        if (!name.trimmed().isEmpty())
            visit(source, line, name, videoPath(course, name));
    });
}

bool isDrawing(const QString& path) {
    return path.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive);
}

/// Calls `visit` once for each drawing, or each other picture, that shows and that nobody
/// describes.
template <class Visit>
void forEachWordless(const Course& course, bool drawings, Visit visit) {
    std::set<QString> known;
    forEachPicture(
        course, [&](const Source& source, const Line& line, QStringView name, const QString& path) {
            if (path.isEmpty() || isDrawing(path) != drawings || !known.insert(path).second ||
                !course.descriptions.of(QFileInfo(path).fileName().toStdString()).empty())
                return;
            const auto picture = course.pictures->load(path);
            if (picture && picture->description().isEmpty())
                visit(source, line, name);
        });
}

} // namespace

void missingPicture(const Course& course, Findings& findings) {
    forEachPicture(
        course, [&](const Source& source, const Line& line, QStringView name, const QString& path) {
            if (path.isEmpty())
                findings.add(source, line.number,
                             "l’image " + quoted(name) + " n’est ni dans " +
                                 (course.isInstalled ? "le cours" : "files/") +
                                 " ni dans ZEKXDATA : rien ne se verra");
        });
}

void missingVideo(const Course& course, Findings& findings) {
    forEachVideo(
        course, [&](const Source& source, const Line& line, QStringView name, const QString& path) {
            if (path.isEmpty())
                findings.add(source, line.number,
                             "la vidéo " + quoted(name) + " n’est ni dans " +
                                 (course.isInstalled ? "le cours" : "files/") + " ni dans ZEKXV");
        });
}

void fileNameInOtherCase(const Course& course, Findings& findings) {
    const auto compare = [&](const Source& source, const Line& line, QStringView name,
                             const QString& path) {
        const QString asked = platform::lastComponent(name.toString());
        const QString there = QFileInfo(path).fileName();
        if (path.isEmpty() || asked == there || asked.compare(there, Qt::CaseInsensitive) != 0)
            return;
        QString meant = line.text.toString();
        meant.replace(meant.lastIndexOf(asked), asked.size(), there);
        findings.add(source, line,
                     "le fichier s’appelle " + quoted(there) + ", et non " + quoted(asked) +
                         " : ailleurs que dans ce programme, la casse peut compter",
                     meant, true);
    };
    forEachPicture(course, compare);
    forEachVideo(course, compare);
}

void unknownSymbol(const Course& course, Findings& findings) {
    forEachLine(course, [&](const Source& source, const Line& line) {
        if (!line.what)
            return;
        const markup::Argument kind = line.what->argument;
        const bool isLink =
            kind == markup::Argument::KeyedLink || kind == markup::Argument::TippedLink;
        if (!isLink && kind != markup::Argument::Key)
            return;
        const QStringView rest = line.argument();
        const QString key = (isLink ? rest.first(qMin(markup::kKeyLength, rest.size()))
                                    : markup::lastCharacters(line.directive, markup::kKeyLength))
                                .toString();
        if (!course.pictures->symbol(key))
            findings.add(source, line.number,
                         "la liste d’images n’a pas de symbole " + quoted(key) +
                             (line.runs(markup::symbolInLine)
                                  ? " : rien ne se verra"
                                  : " : le signe d’un lien se montrera à sa place"));
    });
}

void unreadablePicture(const Course& course, Findings& findings) {
    forEachPicture(
        course, [&](const Source& source, const Line& line, QStringView name, const QString& path) {
            if (!path.isEmpty() && !course.pictures->load(path))
                findings.add(source, line.number,
                             quoted(name) + " n’est pas une image que le programme sait montrer");
        });
}

void drawingWithoutWords(const Course& course, Findings& findings) {
    forEachWordless(course, true, [&](const Source& source, const Line& line, QStringView name) {
        findings.add(source, line.number,
                     "le dessin " + quoted(name) +
                         " n’a pas d’élément <title> : rien ne le décrit à qui ne le voit pas");
    });
}

void pictureWithoutWords(const Course& course, Findings& findings) {
    forEachWordless(course, false, [&](const Source& source, const Line& line, QStringView name) {
        findings.add(source, line.number,
                     "rien ne décrit l’image " + quoted(name) +
                         " à qui ne la voit pas : une ligne de descriptions.txt le ferait");
    });
}

} // namespace check
