#include "look/picture_box.h"

#include "look/coloured_area.h"
#include "look/palette.h"
#include "look/picture_accessible.h"
#include "look/pixels.h"
#include "page/twips.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace look {

namespace {

/// In logical pixels of the surface.
QRegion keptOf(const page::PictureOperation& picture) {
    const QRect place =
        QRectF(picture.x / page::kTwipsPerPixel, picture.y / page::kTwipsPerPixel,
               picture.width / page::kTwipsPerPixel, picture.height / page::kTwipsPerPixel)
            .toAlignedRect();
    const QImage pixels = picture.picture ? picture.picture->image(place.size()) : QImage();
    return pixels.isNull() ? QRegion(place) : colouredArea(pixels).translated(place.topLeft());
}

} // namespace

PictureBox::PictureBox(page::SurfaceId id, int widthPx, QRgb ground, const page::FontBook& fonts,
                       const page::Recording& recording, QWidget* parent)
    : QWidget(parent), recording_(recording), id_(id), raster_(id, widthPx, fonts, ground) {
    PictureAccessible::install();
    setInset(0);
}

PictureBox::~PictureBox() {
    delete rim_;
}

void PictureBox::setInset(int pixels) {
    inset_ = pixels;
    // Without a border it covers all of its place, so that nothing needs to be painted below it.
    setAttribute(Qt::WA_OpaquePaintEvent, pixels == 0);
}

void PictureBox::empty() {
    forgetReadable();
    raster_.reset();
    heightPx_ = 0;
    controlsFoot_ = 0;
    marks_ = {};
    selection_.clear();
    spoken_ = {};
    update();
    updateMargin();
}

void PictureBox::showDrawing() {
    forgetReadable();
    followDensity();
    raster_.play(recording_);
    update();
    updateMargin();
}

/// The window may have come to a screen of another density, or its scale has changed. All of it is
/// painted then anyway: to ask for that would have it painted twice.
void PictureBox::followDensity() {
    if (devicePixelRatioF() == raster_.devicePixelRatio())
        return;
    raster_.setDevicePixelRatio(devicePixelRatioF());
    raster_.play(recording_);
}

void PictureBox::updateMargin() {
    if (rim_)
        rim_->update();
}

void PictureBox::paintMargin(QPainter& painter, const QRect& exposed) {
    followDensity();
    raster_.paintMargin(painter, recording_, height() - 2 * inset_,
                        exposed.translated(-inset_, -inset_));
}

int PictureBox::pageHeightPx() const {
    return heightPx_ > 0 ? qCeil(heightPx_) : std::max(raster_.drawnHeightPx(), controlsFoot_);
}

QRect PictureBox::shownArea() const {
    const int below = followsPage_ ? pageHeightPx() : height();
    return QRect(0, 0, width(), below).adjusted(inset_, inset_, -inset_, -inset_);
}

void PictureBox::moveToSurface(QPainter& painter, QPoint place) const {
    painter.translate(QPoint(inset_, inset_) - place);
    const double ratio = painter.device()->devicePixelRatioF();
    const QTransform now = painter.deviceTransform();
    painter.translate((std::round(now.dx()) - now.dx()) / ratio,
                      (std::round(now.dy()) - now.dy()) / ratio);
}

const page::ReadablePage& PictureBox::readablePage() const {
    if (!readable_)
        readable_ = std::make_unique<const page::ReadablePage>(recording_, id_);
    return *readable_;
}

void PictureBox::forgetReadable() {
    ++drawing_;
    readable_.reset();
    kept_.reset();
}

void PictureBox::setMarks(Marks marks) {
    marks_ = std::move(marks);
    update();
}

void PictureBox::setSelection(std::vector<QRectF> areas) {
    selection_ = std::move(areas);
    update();
}

/// As one region, so that letters which overlap are tinted once.
void PictureBox::setSpoken(const QRectF& area) {
    spoken_ = area;
    update();
}

void PictureBox::paintSpoken(QPainter& painter) const {
    if (spoken_.isNull())
        return;
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(spoken_.toAlignedRect(), QColor::fromRgb(kSpokenTint));
    painter.restore();
}

void PictureBox::paintSelection(QPainter& painter) const {
    if (selection_.empty())
        return;
    QRegion selected;
    for (const QRectF& area : selection_)
        selected += area.toAlignedRect();
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    for (const QRect& part : selected)
        painter.fillRect(part, QColor::fromRgb(kSelectionTint));
    painter.restore();
}

QRegion PictureBox::keptArea() const {
    if (kept_)
        return *kept_;
    QRegion pictures;
    for (const page::Operation& operation : recording_.operations()) {
        const auto* clear = std::get_if<page::ClearOperation>(&operation);
        if (clear && clear->surface == id_)
            pictures = {};
        const auto* picture = std::get_if<page::PictureOperation>(&operation);
        if (picture && picture->surface == id_ && !picture->symbol)
            pictures |= keptOf(*picture).translated(inset_, inset_);
    }
    kept_ = pictures;
    return pictures;
}

/// The tints are multiplied with what is drawn: letters stay as dark as they are. A frame tells the
/// current mark from the others for who does not see the tints apart.
void PictureBox::paintMarks(QPainter& painter, const QRect& exposed) const {
    using namespace look;
    const double ratio = painter.device()->devicePixelRatioF();
    const auto devicePixels = [ratio](const QRectF& mark) {
        return QRectF(mark.topLeft() * ratio, mark.size() * ratio).toAlignedRect();
    };
    // As a region, marks on lines that stand close are one tint where they overlap.
    QRegion others;
    for (const QRectF& mark : marks_.others)
        if (mark.intersects(exposed))
            others += devicePixels(mark);
    // The frame is around the mark; at the edge of the surface it is on it.
    const int edge = qRound(crisp(painter) * ratio);
    const QRect frame =
        marks_.current.isNull()
            ? QRect()
            : devicePixels(marks_.current).adjusted(-edge, -edge, edge, edge) &
                  devicePixels(QRectF(QPointF(), size() - 2 * QSize(inset_, inset_)));
    const QRect current = frame.adjusted(edge, edge, -edge, -edge);

    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    const auto tint = [&painter](const QRegion& area, QRgb colour) {
        for (const QRect& part : area)
            painter.fillRect(part, QColor::fromRgb(colour));
    };
    tint(others - frame, kMarkTint);
    tint(current, kCurrentMarkTint);
    tint(QRegion(frame) - current, kInk);
    painter.restore();
}

void PictureBox::paintEvent(QPaintEvent* event) {
    followDensity();
    if (inset_ > 0 && isBlank())
        return;
    QPainter painter(this);
    if (inset_ > 0) {
        drawFrame(painter, rect(), 0, kRule, QColor::fromRgb(kPaper));
        painter.setClipRect(rect().adjusted(inset_, inset_, -inset_, -inset_));
    }
    moveToSurface(painter);
    const QRect exposed = event->rect().translated(-inset_, -inset_);
    raster_.paint(painter, exposed);
    if (inset_ > 0) {
        // What rises above a first line goes over the rule.
        painter.save();
        painter.setClipping(false);
        painter.scale(1 / raster_.devicePixelRatio(), 1 / raster_.devicePixelRatio());
        paintMargin(painter, event->rect());
        painter.restore();
    }
    paintSpoken(painter);
    paintSelection(painter);
    paintMarks(painter, exposed.adjusted(-1, -1, 1, 1));
}

} // namespace look
