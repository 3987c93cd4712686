#include "coursetool/tool_pictures.h"

#include "coursetool/paths.h"
#include "platform/file_names.h"
#include "shell/start_up.h"

#include <QFileInfo>

namespace coursetool {

namespace {

QString directoryName(const std::filesystem::path& path) {
    return QString::fromStdString(shown(path));
}

std::map<QChar, QString> lettersOf(const std::map<char, std::filesystem::path>& drives) {
    std::map<QChar, QString> letters;
    for (const auto& [letter, directory] : drives)
        letters.emplace(QLatin1Char(letter), directoryName(directory));
    return letters;
}

} // namespace

ToolPictures::ToolPictures(const std::filesystem::path& course,
                           const std::map<char, std::filesystem::path>& drives, Report& report)
    : place_(shown(course)), report_(report), drives_(directoryName(course), lettersOf(drives)),
      location_(directories_, drives_, nobody_, nobody_), symbols_(directoryName(course)),
      pictures_(location_, symbols_) {
    if (!course.empty())
        directories_.InstallDir = shell::installDir(directoryName(course));
}

QString ToolPictures::locatePicture(const QString& name) {
    QString path = pictures_.locatePicture(name);
    if (path.isEmpty() && !name.isEmpty())
        warnOnce(platform::lastComponent(name),
                 "image introuvable, dans le cours comme dans ZEKXDATA d’un lecteur");
    return path;
}

std::shared_ptr<const page::Picture> ToolPictures::load(const QString& path) {
    auto picture = pictures_.load(path);
    if (!picture && !path.trimmed().isEmpty())
        warnOnce(path, "ce n’est pas une image que le programme sait montrer");
    return picture;
}

std::shared_ptr<const page::Picture> ToolPictures::symbol(const QString& key) {
    return pictures_.symbol(key);
}

void ToolPictures::warnOnce(const QString& subject, const std::string& sentence) {
    if (told_.contains(subject))
        return;
    told_.insert(subject);
    const std::string name = inQuotes(QFileInfo(subject).fileName().toStdString());
    report_.warning({place_.empty() ? "images" : place_}, name + " : " + sentence);
}

} // namespace coursetool
