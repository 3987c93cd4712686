#pragma once

#include "markup/picture_source.h"

/// An empty source, for a page source that belongs to no course.
class NoPictures : public markup::PictureSource {
public:
    QString locatePicture(const QString&) override { return {}; }
    std::shared_ptr<const page::Picture> load(const QString&) override { return nullptr; }
    std::shared_ptr<const page::Picture> symbol(const QString&) override { return nullptr; }
};
