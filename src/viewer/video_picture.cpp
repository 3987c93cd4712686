#include "viewer/video_picture.h"

#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"

#include <QGraphicsEffect>
#include <QMouseEvent>
#include <QPainter>

namespace viewer {

namespace {

/// Until the first picture is there; dark as its margins.
constexpr QRgb kGround = 0xff10222f;

} // namespace

VideoPicture::VideoPicture(QWidget* parent) : QWidget(parent) {
    look::setAccessibleRole(*this, QAccessible::Graphic);
    setObjectName(QStringLiteral("projo"));
    setAccessibleName(QStringLiteral("Image de la vidéo"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize VideoPicture::pictureSize() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void VideoPicture::showPicture(const QImage& picture) {
    picture_ = picture;
    update();
}

void VideoPicture::showWords(const QString& words) {
    picture_ = {};
    words_ = words;
    setAccessibleDescription(words);
    setCursor(words.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    update();
}

void VideoPicture::paintEvent(QPaintEvent*) {
    using namespace look;
    QPainter painter(this);
    if (!picture_.isNull()) {
        painter.drawImage(rect(), picture_);
        // Below an effect the window is painted on a ground that lets through, and the frames of a
        // video leave the byte of the opacity empty.
        if (window()->graphicsEffect()) {
            painter.setCompositionMode(QPainter::CompositionMode_Plus);
            painter.fillRect(rect(), Qt::black);
        }
        if (picture_.size() != pictureSize() && asked_ != pictureSize() && resized_) {
            asked_ = pictureSize();
            QMetaObject::invokeMethod(this, resized_, Qt::QueuedConnection);
        }
        return;
    }
    painter.fillRect(rect(), QColor::fromRgb(kGround));
    painter.setPen(QColor::fromRgb(kPaper));
    painter.setFont(interfaceFont(kLabelPx, Weight::Bold));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, words_);
}

void VideoPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && clicked_)
        clicked_();
}

void VideoPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || picture_.isNull() || !doubled_)
        return;
    clicked_();
    doubled_();
}

} // namespace viewer
