#include "publish/course_site.h"

#include "coursedata/exercise_tables.h"
#include "coursetool/course_sheets.h"
#include "coursetool/installed_course.h"
#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/passing_folder.h"
#include "page/numbers.h"
#include "publish/exercise_files.h"
#include "publish/films.h"
#include "publish/page_data.h"
#include "publish/scorm_package.h"
#include "publish/site_assets.h"
#include "publish/test_data.h"
#include "text/rounding.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <map>
#include <optional>
#include <set>
#include <utility>

namespace publish {

namespace {

/// A classic script that hands an object over: pages opened from a stick may load nothing else.
QByteArray script(const QString& key, const QByteArray& json) {
    return "orvalente.recevoir(\"" + key.toUtf8() + "\"," + json + ");\n";
}

QByteArray script(const QString& key, const QJsonObject& data) {
    return script(key, QJsonDocument(data).toJson(QJsonDocument::Compact));
}

QByteArray base64Script(const QString& key, const QByteArray& bytes) {
    return script(key, '"' + bytes.toBase64() + '"');
}

int wholeNumber(const QString& field) {
    return text::toInt32(page::leadingNumber(field)).value_or(0);
}

/// Chapters that have a test.
std::set<int> testChapters(const coursedata::ExerciseTables& tables) {
    std::set<int> chapters;
    if (tables.description)
        tables.description->forEach(
            {QStringLiteral("Chapitre")}, [&](int, std::span<const coursedata::FieldValue> fields) {
                if (const auto chapter = text::toInt16(coursedata::fieldNumber(fields[0])))
                    chapters.insert(*chapter);
            });
    return chapters;
}

/// What a site brings along whole.
struct SiteParts {
    QByteArray program;
    QByteArray simulations;
    QByteArray search; ///< the database
};

class Publisher {
public:
    Publisher(const PublishRequest& request, const page::FontBook& fonts,
              markup::PictureSource& pictures, const page::FieldPictures& fields,
              coursetool::CourseSheets& pages, coursedata::ExerciseTables tables,
              const std::filesystem::path& folder, coursetool::Report& report)
        : fonts_(fonts), pictures_(pictures), fields_(fields), pages_(pages),
          tests_(testChapters(tables)), links_(pages, tests_), report_(report),
          site_(folder, report), faces_(fonts), drawings_(fonts, faces_),
          folder_(QString::fromStdString(coursetool::shown(request.course))),
          films_(folder_, site_, report) {
        records_.read(std::move(tables));
    }

    /// Where the site is, when it is whole.
    const SiteFolder* publish(const SiteParts& parts) {
        if (!site_.open())
            return nullptr;
        course_.insert(QStringLiteral("titre"), pages_.title());
        addPages();
        addTests();
        addExercises();
        addLarge(QStringLiteral("programme"), parts.program);
        addLarge(QStringLiteral("simulateur"), parts.simulations);
        addLarge(QStringLiteral("recherche"), parts.search);
        const QByteArray faces = report_.hasFaults() ? QByteArray() : faces_.write(site_);
        if (report_.hasFaults())
            return nullptr;
        SiteAssets assets(site_);
        course_.insert(QStringLiteral("suite"), assets.writeLater());
        const QByteArray index = assets.write(
            pages_.title(), faces, script(QStringLiteral("cours"), course_), firstPage_, plan_);
        return !report_.hasFaults() && site_.finish(index) ? &site_ : nullptr;
    }

private:
    void addPages() {
        std::map<std::pair<int, int>, QJsonObject> inOrder; // by index, then number
        for (int position = 0; position < pages_.count(); ++position) {
            report_.progress("pages publiées", static_cast<std::size_t>(position) + 1,
                             static_cast<std::size_t>(pages_.count()));
            const auto number = pages_.number(position);
            // Another record of the first one's number may be what is shown.
            if (number && !course_.contains(QStringLiteral("debut")))
                course_.insert(QStringLiteral("debut"), *number);
            if (!number || pages_.positionShown(*number) != position)
                continue; // no link leads there
            const coursetool::DrawnCoursePage drawn =
                pages_.drawn(position, fonts_, pictures_, report_);
            const QJsonObject entry = addPage(*number, drawn);
            if (*number == course_.value(QStringLiteral("debut")).toInt())
                firstPage_ = entry.value(QStringLiteral("fichier")).toString();
            inOrder.emplace(std::pair(wholeNumber(drawn.record.TextIndex), *number), entry);
        }
        QJsonArray list;
        for (const auto& [order, entry] : inOrder)
            list.append(entry);
        course_.insert(QStringLiteral("pages"), list);
    }

    QJsonObject addPage(int number, const coursetool::DrawnCoursePage& drawn) {
        QJsonObject data = pageData(drawn, fonts_, links_, drawings_);
        if (drawn.page.videoPage && !data.contains(QStringLiteral("films")))
            data.insert(QStringLiteral("film"), films_.film(*drawn.page.videoPage));
        const QString key = QStringLiteral("p%1").arg(number);
        plan_ += "<h1 id=\"" + key.toUtf8() + "\">" + drawn.sheet.title.toHtmlEscaped().toUtf8() +
                 "</h1>\n" + data.value(QStringLiteral("texte")).toString().toUtf8() + '\n';
        const coursedata::BoundRecord& record = drawn.record;
        return {{QStringLiteral("numero"), number},
                {QStringLiteral("titre"), drawn.sheet.title},
                {QStringLiteral("fichier"),
                 site_.add(QStringLiteral("pages/") + key, ".js", script(key, data))},
                {QStringLiteral("avant"), record.Checkpre},
                {QStringLiteral("apres"), record.Checksui},
                {QStringLiteral("imprimable"), record.Checkimp},
                {QStringLiteral("de"), wholeNumber(record.debimp)},
                {QStringLiteral("a"), wholeNumber(record.finimp)}};
    }

    void addTests() {
        QJsonArray list;
        for (const int chapter : tests_) {
            const auto data = testData(records_, static_cast<std::int16_t>(chapter),
                                       {fonts_, pictures_, fields_, links_, drawings_});
            if (!data)
                continue;
            const QString key = QStringLiteral("t%1").arg(chapter);
            list.append(
                QJsonObject{{QStringLiteral("chapitre"), chapter},
                            {QStringLiteral("titre"), data->value(QStringLiteral("titre"))},
                            {QStringLiteral("fichier"), site_.add(QStringLiteral("tests/") + key,
                                                                  ".js", script(key, *data))}});
        }
        course_.insert(QStringLiteral("tests"), list);
    }

    void addExercises() {
        QJsonObject files;
        for (const auto& [module, exercises] : exercisesOfCourse(folder_)) {
            const QString key = QStringLiteral("m%1").arg(module);
            files.insert(key, site_.add(QStringLiteral("simulations/") + key, ".js",
                                        script(key, exercises)));
        }
        course_.insert(QStringLiteral("simulations"), files);
    }

    void addLarge(const QString& key, const QByteArray& bytes) {
        course_.insert(
            key, site_.add(QStringLiteral("programme/") + key, ".js", base64Script(key, bytes)));
    }

    const page::FontBook& fonts_;
    markup::PictureSource& pictures_;
    const page::FieldPictures& fields_;
    coursetool::CourseSheets& pages_;
    std::set<int> tests_;
    SiteLinks links_;
    coursetool::Report& report_;
    exercises::DatabaseRecords records_;
    SiteFolder site_;
    WebFaces faces_;
    DrawingWriter drawings_;
    QString folder_; ///< of the course
    Films films_;
    QJsonObject course_; ///< what the site knows of all its pages
    QString firstPage_;  ///< its script
    QByteArray plan_;    ///< all texts, for who has no scripts
};

std::optional<QByteArray> read(const std::filesystem::path& path) {
    QFile file(QString::fromStdString(coursetool::shown(path)));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

} // namespace

void publishCourse(const PublishRequest& request, const BrowserPrograms& programs,
                   const page::FontBook& fonts, markup::PictureSource& pictures,
                   const page::FieldPictures& fields, coursetool::Report& report) {
    SiteParts parts;
    for (const auto& [path, part] : {std::pair(&programs.course, &parts.program),
                                     std::pair(&programs.simulations, &parts.simulations)}) {
        const auto program = read(*path);
        if (!program) {
            report.fault({coursetool::shown(path->filename())},
                         "le programme des navigateurs manque : « scripts/setup web » installe de "
                         "quoi le construire");
            return;
        }
        *part = *program;
    }
    auto pages = coursetool::CourseSheets::open(request.course, report);
    const auto database = coursetool::findDatabase(request.course, coursetool::kCourseFile, report);
    if (!pages || !database)
        return;
    coursedata::ExerciseTables tables =
        coursedata::openExerciseTables(QString::fromStdString(coursetool::shown(request.course)));
    std::optional<files::PassingFolder> packed; // becomes the package
    std::error_code error;
    if (request.scorm)
        packed.emplace(error);
    if (error)
        return report.failure(request.output, files::kFolderNotCreated, error);
    const std::filesystem::path folder = packed ? packed->path() : request.output;
    Publisher publisher(request, fonts, pictures, fields, *pages, std::move(tables), folder,
                        report);
    parts.search = read(*database).value_or(QByteArray());
    const SiteFolder* const site = publisher.publish(parts);
    if (site && request.scorm)
        packScorm(*site, pages->title(), request.output, report);
}

} // namespace publish
