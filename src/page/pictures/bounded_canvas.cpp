#include "page/pictures/bounded_canvas.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace page {

namespace {

// Costs in the time that one cell of a short smooth outline takes, about 0.15 us. The constants fit
// what paths of 100 to 1000 long lines, and of 20,000 curves, took in pictures 600 and 3000 pixels
// wide.

/// What one drawing may cost: less than a second.
constexpr double kBudget = 4e6;
/// The share of what is left that one path may take to be smooth.
constexpr double kSmoothShare = 0.6;
/// Outlines of this many cells are twice as dear a cell: the rasteriser goes over long ones anew
/// for every few rows.
constexpr double kLongOutline = 4000;
/// A cell of an outline without smoothing is cheaper by this factor.
constexpr double kSmoothingFactor = 8;
/// Points of a path, wherever they are; the pen goes along both sides of the lines between them.
constexpr double kPointCost = 1;
constexpr double kPenPointCost = 6;
/// Pixels that can be filled instead.
constexpr double kPixelsFilled = 500;
/// A stroke has two sides, and corners.
constexpr double kStrokeFactor = 3;
/// A dash has two ends beside that.
constexpr double kDashCells = 30;
/// Dashes of one path; more would be grey.
constexpr double kMostDashes = 20'000;

/// What a path costs, by its place in the picture.
struct PathCost {
    double cells = 0;  ///< pixels that its outline passes
    double pixels = 0; ///< that it covers at most
    double dashes = 0;

    double points = 0; ///< what they cost

    double smooth() const { return cells * (1 + cells / kLongOutline) + others(); }
    double plain() const { return cells / kSmoothingFactor + others(); }

private:
    double others() const { return 1 + points + pixels / kPixelsFilled; }
};

/// Pixels of a device to a unit of the pen's, on the whole.
double scaleOf(const QTransform& transform) {
    return std::sqrt(std::abs(transform.determinant()));
}

/// The pen's width in pixels.
double penWidth(const QPen& pen, const QTransform& transform) {
    return std::max(1.0, pen.widthF() * (pen.isCosmetic() ? 1 : scaleOf(transform)));
}

/// Dashes along so many pixels, those outside the picture included; lines have none.
double dashesAlong(double length, const QPen& pen, const QTransform& transform) {
    if (pen.style() == Qt::NoPen || pen.style() == Qt::SolidLine)
        return 0;
    const QList<qreal> pattern = pen.dashPattern(); // in widths of the pen
    const double once =
        std::accumulate(pattern.begin(), pattern.end(), 0.0) * penWidth(pen, transform);
    const double dashes = length / once * static_cast<double>(pattern.size());
    return std::isfinite(dashes) ? dashes : kMostDashes + 1;
}

PathCost costOf(const QPainterPath& path, const QTransform& transform, const QPen& pen,
                const QRectF& picture) {
    // What is far outside is cut before it costs anything.
    const QRectF around =
        picture.adjusted(-picture.width(), -picture.height(), picture.width(), picture.height());
    const double widest = around.width() + around.height();
    PathCost cost;
    QPointF before;
    QPointF mappedBefore;
    double length = 0;
    for (int index = 0; index < path.elementCount(); ++index) {
        const QPainterPath::Element element = path.elementAt(index);
        const QPointF mapped = transform.map(QPointF(element));
        const QPointF point(std::clamp(mapped.x(), around.left(), around.right()),
                            std::clamp(mapped.y(), around.top(), around.bottom()));
        if (!element.isMoveTo()) {
            cost.cells += 1 + (point - before).manhattanLength();
            length += (mapped - mappedBefore).manhattanLength();
        }
        before = point;
        mappedBefore = mapped;
    }
    if (pen.style() != Qt::NoPen) {
        // Where lines meet, a wide pen goes around the corner.
        const double corners = path.elementCount() * std::min(penWidth(pen, transform), widest);
        cost.cells = cost.cells * kStrokeFactor + corners;
        cost.dashes = dashesAlong(length, pen, transform);
        cost.cells += cost.dashes * kDashCells;
    }
    cost.points = path.elementCount() * (pen.style() == Qt::NoPen ? kPointCost : kPenPointCost);
    const QRectF shown = transform.mapRect(path.controlPointRect()) & picture;
    cost.pixels = shown.width() * shown.height();
    return cost;
}

} // namespace

/// Hands everything on to a painter of the image, once it has been paid for.
class BoundedCanvas::Engine : public QPaintEngine {
public:
    Engine(QImage& image, const GivenUp& givenUp)
        : QPaintEngine(AllFeatures), image_(image), givenUp_(givenUp) {}

    bool begin(QPaintDevice*) override { return painter_.begin(&image_); }
    bool end() override { return painter_.end(); }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& news) override {
        const DirtyFlags changed = news.state();
        if (changed & DirtyTransform)
            painter_.setTransform(news.transform());
        if (changed & DirtyPen)
            painter_.setPen(news.pen());
        if (changed & DirtyBrush)
            painter_.setBrush(news.brush());
        if (changed & DirtyBrushOrigin)
            painter_.setBrushOrigin(news.brushOrigin());
        if (changed & DirtyOpacity)
            painter_.setOpacity(news.opacity());
        if (changed & DirtyCompositionMode)
            painter_.setCompositionMode(news.compositionMode());
        if (changed & DirtyHints)
            painter_.setRenderHints(news.renderHints());
        if (changed & DirtyClipPath)
            painter_.setClipPath(news.clipPath(), news.clipOperation());
        if (changed & DirtyClipRegion)
            painter_.setClipRegion(news.clipRegion(), news.clipOperation());
        if (changed & DirtyClipEnabled)
            painter_.setClipping(news.isClipEnabled());
    }

    void drawPath(const QPainterPath& path) override {
        if (isSpent())
            return;
        const PathCost cost = costOf(path, painter_.transform(), painter_.pen(), image_.rect());
        if (cost.dashes > kMostDashes || (cost.dashes > 0 && cost.plain() > left_))
            drawUndashed(path);
        else
            drawPath(path, cost);
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        // A path leaves out points that stand at the same place, but only after a look at them.
        if (isSpent() || !pay(count * kPointCost))
            return;
        QPainterPath path;
        for (int index = 0; index < count; ++index)
            index == 0 ? path.moveTo(points[index]) : path.lineTo(points[index]);
        if (mode != PolylineMode) {
            path.closeSubpath();
            path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
            drawPath(path);
            return;
        }
        const QBrush brush = painter_.brush();
        painter_.setBrush(Qt::NoBrush);
        drawPath(path);
        painter_.setBrush(brush);
    }

    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override {
        drawImage(target, pixmap.toImage(), source, Qt::AutoColor);
    }

    void drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags flags) override {
        const QRectF shown = painter_.transform().mapRect(target) & QRectF(image_.rect());
        // Smooth scaling takes several times as long as filling.
        if (pay(1 + 4 * shown.width() * shown.height() / kPixelsFilled))
            painter_.drawImage(target, image, source, flags);
    }

private:
    void drawPath(const QPainterPath& path, const PathCost& cost) {
        const bool isSmooth = cost.smooth() <= left_ * kSmoothShare;
        if (!pay(isSmooth ? cost.smooth() : cost.plain()))
            return;
        const bool wasSmooth = painter_.testRenderHint(QPainter::Antialiasing);
        painter_.setRenderHint(QPainter::Antialiasing, wasSmooth && isSmooth);
        painter_.drawPath(path);
        painter_.setRenderHint(QPainter::Antialiasing, wasSmooth);
    }

    void drawUndashed(const QPainterPath& path) {
        const QPen dashed = painter_.pen();
        QPen whole = dashed;
        whole.setStyle(Qt::SolidLine);
        painter_.setPen(whole);
        drawPath(path, costOf(path, painter_.transform(), whole, image_.rect()));
        painter_.setPen(dashed);
    }

    bool isSpent() const { return left_ <= 0 || givenUp_; }

    bool pay(double cost) {
        left_ -= cost;
        return !isSpent();
    }

    QImage& image_;
    const GivenUp& givenUp_;
    QPainter painter_;
    double left_ = kBudget;
};

BoundedCanvas::BoundedCanvas(QSize size, const GivenUp& givenUp)
    : image_(size, QImage::Format_ARGB32_Premultiplied),
      engine_(std::make_unique<Engine>(image_, givenUp)) {
    image_.fill(Qt::transparent);
}

BoundedCanvas::~BoundedCanvas() = default;

QPaintEngine* BoundedCanvas::paintEngine() const {
    return engine_.get();
}

int BoundedCanvas::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
        return image_.width();
    case PdmHeight:
        return image_.height();
    case PdmWidthMM:
        return image_.widthMM();
    case PdmHeightMM:
        return image_.heightMM();
    case PdmNumColors:
        return 0;
    case PdmDepth:
        return image_.depth();
    case PdmDpiX:
    case PdmPhysicalDpiX:
        return image_.logicalDpiX();
    case PdmDpiY:
    case PdmPhysicalDpiY:
        return image_.logicalDpiY();
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    }
    return 0;
}

} // namespace page
