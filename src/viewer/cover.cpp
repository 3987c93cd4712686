#include "viewer/cover.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QImageReader>
#include <QPainter>

namespace viewer {

namespace {

const QString kWords = QStringLiteral("Chargement du cours…");
constexpr int kGap = 8;
constexpr int kLineHeight = 20;
constexpr int kBorder = 1;

/// Pixels of a picture file that is still read: a scanned sheet has fewer, and a damaged header
/// cannot ask for more memory than this.
constexpr qint64 kMostPixels = 50'000'000;

} // namespace

Cover::Cover(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("cover"));
    setAccessibleName(kWords);
}

void Cover::setPicture(const QString& path) {
    path_ = path;
    picture_ = {};
    const QSize size = path.isEmpty() ? QSize() : QImageReader(path).size();
    const bool readable = !size.isEmpty() && qint64{size.width()} * size.height() <= kMostPixels;
    pictureSize_ = readable ? size : QSize();
    const QSize room(width() - 2 * kBorder, height() - 2 * (kBorder + kGap + kLineHeight));
    if (pictureSize_.width() > room.width() || pictureSize_.height() > room.height())
        pictureSize_.scale(room, Qt::KeepAspectRatio);
}

QRect Cover::pictureRect() const {
    if (pictureSize_.isEmpty())
        return {};
    return {QPoint((width() - pictureSize_.width()) / 2, (height() - pictureSize_.height()) / 2),
            pictureSize_};
}

QRect Cover::labelRect() const {
    const QRect picture = pictureRect();
    const int top = picture.isEmpty() ? (height() - kLineHeight) / 2 : picture.bottom() + 1 + kGap;
    return {0, top, width(), kLineHeight};
}

void Cover::paintEvent(QPaintEvent*) {
    using namespace look;
    QPainter painter(this);
    drawFrame(painter, rect(), 0, kRule, QColor::fromRgb(kPaper));
    if (picture_.isNull() && !pictureSize_.isEmpty()) {
        QImageReader reader(path_);
        reader.setScaledSize(pictureSize_ * devicePixelRatioF());
        picture_ = reader.read();
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!picture_.isNull())
        painter.drawImage(pictureRect(), picture_);
    painter.setPen(QColor::fromRgb(kMuted));
    painter.setFont(interfaceFont(kLabelPx));
    painter.drawText(labelRect(), Qt::AlignCenter, kWords);
}

} // namespace viewer
