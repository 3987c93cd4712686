#include "publish/scorm_package.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/whole_file.h"

#include <QFile>
#include <QXmlStreamWriter>

#include <zip.h>

#include <algorithm>
#include <list>

namespace publish {

namespace {

/// 1 January 1980, the first day that archives know: when a course was packed is nobody's matter.
constexpr time_t kNoTime = 315532800;

constexpr char kIndex[] = "index.html";

QByteArray manifest(const QString& title, const std::vector<QString>& names) {
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    const auto attribute = [&](const char* name, const char* value) {
        writer.writeAttribute(QString::fromLatin1(name), QString::fromLatin1(value));
    };
    const auto start = [&](const char* name) {
        writer.writeStartElement(QString::fromLatin1(name));
    };
    const auto text = [&](const char* name, const QString& value) {
        writer.writeTextElement(QString::fromLatin1(name), value);
    };
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    start("manifest");
    attribute("identifier", "orvalente");
    attribute("version", "1.2");
    attribute("xmlns", "http://www.imsproject.org/xsd/imscp_rootv1p1p2");
    attribute("xmlns:adlcp", "http://www.adlnet.org/xsd/adlcp_rootv1p2");
    start("metadata");
    text("schema", QStringLiteral("ADL SCORM"));
    text("schemaversion", QStringLiteral("1.2"));
    writer.writeEndElement();
    start("organizations");
    attribute("default", "cours");
    start("organization");
    attribute("identifier", "cours");
    text("title", title);
    start("item");
    attribute("identifier", "activite");
    attribute("identifierref", "site");
    text("title", title);
    text("adlcp:masteryscore", QStringLiteral("50"));
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndElement();
    start("resources");
    start("resource");
    attribute("identifier", "site");
    attribute("type", "webcontent");
    attribute("adlcp:scormtype", "sco");
    attribute("href", kIndex);
    for (const QString& name : names) {
        start("file");
        writer.writeAttribute(QStringLiteral("href"), name);
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    return xml;
}

/// An archive in memory.
class Archive {
public:
    Archive() {
        zip_error_init(&error_);
        bytes_ = zip_source_buffer_create(nullptr, 0, 0, &error_);
        zip_ = bytes_ ? zip_open_from_source(bytes_, ZIP_TRUNCATE, &error_) : nullptr;
        if (bytes_)
            zip_source_keep(bytes_);
    }
    ~Archive() {
        if (zip_)
            zip_discard(zip_);
        if (bytes_)
            zip_source_free(bytes_);
        zip_error_fini(&error_);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    bool add(const QString& name, QByteArray content) {
        if (!zip_)
            return false;
        const QByteArray& kept = contents_.emplace_back(std::move(content));
        zip_source_t* source =
            zip_source_buffer(zip_, kept.constData(), static_cast<zip_uint64_t>(kept.size()), 0);
        const zip_int64_t index =
            source ? zip_file_add(zip_, name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) : -1;
        if (index < 0) {
            zip_source_free(source);
            return false;
        }
        return zip_file_set_mtime(zip_, static_cast<zip_uint64_t>(index), kNoTime, 0) == 0;
    }

    /// Empty when it could not be made.
    QByteArray finish() {
        if (!zip_ || zip_close(zip_) != 0)
            return {};
        zip_ = nullptr;
        zip_stat_t stat;
        if (zip_source_stat(bytes_, &stat) != 0 || zip_source_open(bytes_) != 0)
            return {};
        QByteArray all(static_cast<qsizetype>(stat.size), '\0');
        const zip_int64_t read = zip_source_read(bytes_, all.data(), stat.size);
        zip_source_close(bytes_);
        return read == static_cast<zip_int64_t>(stat.size) ? all : QByteArray();
    }

private:
    zip_error_t error_;
    zip_source_t* bytes_ = nullptr;
    zip_t* zip_ = nullptr;
    std::list<QByteArray> contents_; ///< read when the archive is finished
};

} // namespace

void packScorm(const SiteFolder& site, const QString& title, const std::filesystem::path& archive,
               coursetool::Report& report) {
    std::vector<QString> names = site.names();
    std::sort(names.begin(), names.end());
    Archive zip;
    bool isPacked = zip.add(QStringLiteral("imsmanifest.xml"), manifest(title, names));
    for (const QString& name : names) {
        QFile file(QString::fromStdString(coursetool::shown(site.pathOf(name))));
        isPacked = isPacked && file.open(QIODevice::ReadOnly) && zip.add(name, file.readAll());
    }
    const QByteArray bytes = isPacked ? zip.finish() : QByteArray();
    if (bytes.isEmpty()) {
        report.failure(archive, files::kFileNotWritten,
                       std::make_error_code(std::errc::not_enough_memory));
        return;
    }
    files::WholeFile file(archive);
    if (!file.write(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()))) ||
        !file.putInPlace())
        report.failure(archive, files::kFileNotWritten, file.error());
}

} // namespace publish
