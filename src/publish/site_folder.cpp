#include "publish/site_folder.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/whole_file.h"
#include "files/within.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

namespace publish {

namespace fs = std::filesystem;

namespace {

constexpr char kIndex[] = "index.html";
/// Letters of a hash in a name: 40 bits, enough for the files of one course.
constexpr qsizetype kHashLetters = 10;
/// How much of a first page is looked at.
constexpr qint64 kHeadBytes = 4096;

bool isOurs(const fs::path& folder) {
    QFile index(QString::fromStdString(coursetool::shown(folder / kIndex)));
    if (!index.exists())
        return SiteList::isIn(folder); // its first publishing did not come to an end
    return index.open(QIODevice::ReadOnly) && index.read(kHeadBytes).contains(kGeneratorMark);
}

} // namespace

SiteFolder::SiteFolder(fs::path folder, coursetool::Report& report)
    : folder_(std::move(folder)), report_(report), list_(folder_, report) {}

bool SiteFolder::open() {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(folder_, error);
    if (fs::exists(status)) {
        const bool isFolder = fs::is_directory(status);
        if (!isFolder || (!fs::is_empty(folder_, error) && !isOurs(folder_)) || error) {
            report_.fault({coursetool::shown(folder_)},
                          "n’est ni un dossier vide ni un site publié : choisir un autre dossier");
            return false;
        }
        list_.open();
        return true;
    }
    fs::create_directories(folder_, error);
    if (error)
        report_.failure(folder_, files::kFolderNotCreated, error);
    return !error;
}

QString SiteFolder::nameOf(const QString& stem, const char* ending, const QByteArray& content) {
    // Of what Qt offers the quickest, by far.
    const QByteArray hash =
        QCryptographicHash::hash(content, QCryptographicHash::Blake2b_160).toHex();
    return stem + u'-' + QLatin1String(hash.first(kHashLetters)) + QLatin1String(ending);
}

QString SiteFolder::add(const QString& stem, const char* ending, const QByteArray& content) {
    const QString name = nameOf(stem, ending, content);
    if (std::find(names_.begin(), names_.end(), name) != names_.end())
        return name;
    return write(name, content) ? name : QString();
}

bool SiteFolder::has(const QString& name) const {
    return files::isFileWithin(pathOf(name), folder_);
}

fs::path SiteFolder::pathOf(const QString& name) const {
    return folder_ / coursetool::pathFrom(name.toStdString());
}

bool SiteFolder::finish(const QByteArray& index) {
    if (!write(QString::fromLatin1(kIndex), index))
        return false;
    list_.finish(names_);
    return true;
}

bool SiteFolder::makeFolderOf(const QString& name) {
    const fs::path path = pathOf(name);
    std::error_code error;
    if (files::isFreeOfLinks(path.parent_path(), folder_)) {
        fs::create_directories(path.parent_path(), error);
        if (!error)
            return true;
    } else {
        error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    }
    report_.failure(path.parent_path(), files::kFolderNotCreated, error);
    return false;
}

bool SiteFolder::write(const QString& name, const QByteArray& content) {
    if (!list_.begin(name) || !makeFolderOf(name))
        return false;
    const fs::path path = pathOf(name);
    std::error_code error;
    // What stands at the end of a link is not ours.
    if (fs::is_symlink(fs::symlink_status(path, error)))
        fs::remove(path, error);
    files::WholeFile file(path);
    if (!file.write(
            std::string_view(content.constData(), static_cast<std::size_t>(content.size()))) ||
        !file.putInPlace()) {
        report_.failure(path, files::kFileNotWritten, file.error());
        return false;
    }
    names_.push_back(name);
    return true;
}

} // namespace publish
