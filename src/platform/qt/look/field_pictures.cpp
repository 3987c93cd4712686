#include "platform/qt/look/field_pictures.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

// Resources of a static library are found only after this, which no namespace may hold.
static void initLookResources() {
    Q_INIT_RESOURCE(look);
}

namespace platform::look {

namespace {

/// A drawing that is part of the program.
class Drawing : public Picture {
public:
    explicit Drawing(const QString& resource) {
        initLookResources();
        QFile file(resource);
        if (file.open(QIODevice::ReadOnly))
            bytes_ = file.readAll();
        size_ = QSvgRenderer(bytes_).defaultSize().expandedTo({1, 1});
    }

    QSize size() const override { return size_; }

    QImage image(QSize pixels) const override {
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        if (image.isNull())
            return image;
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QSvgRenderer(bytes_).render(&painter);
        return image;
    }

    PictureFormat format() const override { return PictureFormat::Svg; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    QByteArray bytes_;
    QSize size_;
};

} // namespace

FieldPictures fieldPictures() {
    const auto drawing = [](const char* name) {
        return std::make_shared<Drawing>(QStringLiteral(":/look/") + QLatin1String(name));
    };
    return {drawing("fields/option.svg"), drawing("fields/check.svg"), drawing("icons/link.svg"),
            drawing("icons/video.svg")};
}

} // namespace platform::look
