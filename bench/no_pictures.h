#pragma once

#include "markup/picture_shelf.h"

/// An empty shelf, for a page source that belongs to no course.
class NoPictures : public markup::PictureShelf {
public:
    QString locatePicture(const QString&) override { return {}; }
    std::shared_ptr<const platform::Picture> load(const QString&) override { return nullptr; }
    std::shared_ptr<const platform::Picture> symbol(const QString&) override { return nullptr; }
};
