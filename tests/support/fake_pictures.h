#pragma once

#include "markup/picture_source.h"

#include <QStringList>

#include <functional>
#include <map>

namespace test_support {

/// A picture of one colour.
class PlainPicture : public page::Picture {
public:
    explicit PlainPicture(QSize size, QColor colour = Qt::red) : size_(size), colour_(colour) {}

    QSize size() const override { return size_; }
    QImage image(QSize pixels) const override {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(colour_);
        return image;
    }
    page::PictureFormat format() const override { return page::PictureFormat::Bmp; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    QSize size_;
    QColor colour_;
    QByteArray bytes_;
};

/// Pictures by file name and by key. A name that is not here is on no disc; a null picture stands
/// for a file that cannot be read.
class FakePictures : public markup::PictureSource {
public:
    QString locatePicture(const QString& name) override {
        asked.append(name);
        if (whileLooking)
            whileLooking();
        return anyName || files.contains(name) ? name : QString();
    }
    std::shared_ptr<const page::Picture> load(const QString& path) override {
        return anyName ? plain_ : files[path];
    }
    std::shared_ptr<const page::Picture> symbol(const QString& key) override {
        return anyName ? plain_ : symbols.contains(key) ? symbols[key] : nullptr;
    }

    std::map<QString, std::shared_ptr<const page::Picture>> files;
    std::map<QString, std::shared_ptr<const page::Picture>> symbols;
    QStringList asked;
    std::function<void()> whileLooking;
    bool anyName = false; ///< whether every name and key has a picture

private:
    std::shared_ptr<const page::Picture> plain_ = std::make_shared<PlainPicture>(QSize(80, 60));
};

} // namespace test_support
