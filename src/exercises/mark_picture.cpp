#include "exercises/mark_picture.h"

#include "look/icon.h"

#include <QFile>
#include <QPainter>

namespace exercises {

namespace {

constexpr int kMarkPx = 16;

class DrawnMark : public page::Picture {
public:
    explicit DrawnMark(const QString& name) : icon_(name) {
        QFile file(look::Icon::fileOf(name));
        if (file.open(QIODevice::ReadOnly))
            bytes_ = file.readAll();
    }

    QSize size() const override { return {kMarkPx, kMarkPx}; }

    QImage image(QSize pixels) const override {
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        icon_.paint(painter, QRectF(QPointF(), pixels), look::Icon::Style::Coloured);
        return image;
    }

    page::PictureFormat format() const override { return page::PictureFormat::Svg; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    look::Icon icon_;
    QByteArray bytes_;
};

} // namespace

QString markName(Mark mark) {
    return mark == Mark::InSolution ? QStringLiteral("faces/right") : QStringLiteral("faces/wrong");
}

std::shared_ptr<const page::Picture> markPicture(Mark mark) {
    return std::make_shared<DrawnMark>(markName(mark));
}

} // namespace exercises
