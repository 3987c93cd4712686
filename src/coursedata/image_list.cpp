#include "coursedata/image_list.h"

#include "coursedata/symbol_names.h"
#include "platform/file_names.h"

#include <QDir>

namespace coursedata {

std::shared_ptr<const page::Picture> ImageList::symbol(const QString& key) {
    if (!paths_)
        paths_ = listFiles();
    const auto path = paths_->find(plainSymbolKey(key.toStdString()));
    return path == paths_->end() ? nullptr : pictures_.load(path->second);
}

std::map<std::string, QString> ImageList::listFiles() const {
    const auto folder = platform::findFolderWithoutCase(courseDirectory_, kSymbolFolder);
    std::vector<std::string> courseFiles;
    if (folder)
        for (const QString& name : QDir(*folder).entryList(QDir::Files))
            if (platform::findWithoutCase(*folder, name, courseDirectory_))
                courseFiles.push_back(name.toStdString());
    std::map<std::string, QString> paths;
    for (const auto& [key, file] : imageListOf(std::move(courseFiles)))
        paths[key] = (file.isOwn ? QStringLiteral(":/symbols") : *folder) + u'/' +
                     QString::fromStdString(file.name);
    return paths;
}

} // namespace coursedata
