#pragma once

#include "coursetool/drawing_request.h"
#include "coursetool/tool_pictures.h"
#include "markup/picture_source.h"

#include <QString>

#include <filesystem>
#include <map>
#include <set>

namespace check {

/// The pictures of a course that is checked: each name is looked up once, and what is missing is
/// for the rules to tell.
class CheckPictures : public markup::PictureSource {
public:
    CheckPictures(const std::filesystem::path& files, const coursetool::Drives& drives)
        : shelf_(files, drives, nobody_) {}

    QString locatePicture(const QString& name) override;
    std::shared_ptr<const page::Picture> load(const QString& path) override;
    std::shared_ptr<const page::Picture> symbol(const QString& key) override {
        return shelf_.symbol(key);
    }

private:
    coursetool::Report nobody_;
    coursetool::ToolPictures shelf_;
    std::map<QString, QString> paths_;
    std::set<QString> unreadable_;
};

} // namespace check
