#include "platform/qt/bounded_canvas.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

// Costs in the time that one cell of a short smooth outline takes, about 0.15 us. The constants fit
// what paths of 100 to 1000 long lines took in pictures 600 and 3000 pixels wide.

/// What one drawing may cost: a few seconds.
constexpr double kBudget = 2e7;
/// The share of what is left that one path may take to be smooth.
constexpr double kSmoothShare = 0.2;
/// Outlines of this many cells are twice as dear a cell: the rasteriser goes over long ones anew
/// for every few rows.
constexpr double kLongOutline = 4000;
/// An outline without smoothing is cheaper by this factor at least.
constexpr double kSmoothingFactor = 40;
/// Pixels that can be filled instead.
constexpr double kPixelsFilled = 500;
/// A stroke has two sides, and corners; one of dashes much more of these.
constexpr double kStrokeFactor = 3;
constexpr double kDashFactor = 12;

/// What a path costs, by its place in the picture.
struct PathCost {
    double cells = 0;  ///< pixels that its outline passes
    double pixels = 0; ///< that it covers at most

    double smooth() const { return cells * (1 + cells / kLongOutline) + plainFill(); }
    double plain() const { return 1 + cells / kSmoothingFactor + plainFill(); }

private:
    double plainFill() const { return pixels / kPixelsFilled; }
};

double strokeFactor(const QPen& pen) {
    if (pen.style() == Qt::NoPen)
        return 1;
    return pen.style() == Qt::SolidLine ? kStrokeFactor : kDashFactor;
}

PathCost costOf(const QPainterPath& path, const QTransform& transform, const QPen& pen,
                const QRectF& picture) {
    // What is far outside is cut before it costs anything.
    const QRectF around =
        picture.adjusted(-picture.width(), -picture.height(), picture.width(), picture.height());
    PathCost cost;
    QPointF before;
    for (int index = 0; index < path.elementCount(); ++index) {
        const QPainterPath::Element element = path.elementAt(index);
        const QPointF mapped = transform.map(QPointF(element));
        const QPointF point(std::clamp(mapped.x(), around.left(), around.right()),
                            std::clamp(mapped.y(), around.top(), around.bottom()));
        if (!element.isMoveTo())
            cost.cells += 1 + (point - before).manhattanLength();
        before = point;
    }
    cost.cells *= strokeFactor(pen);
    const QRectF shown = transform.mapRect(path.controlPointRect()) & picture;
    cost.pixels = shown.width() * shown.height();
    return cost;
}

} // namespace

/// Hands everything on to a painter of the image, once it has been paid for.
class BoundedCanvas::Engine : public QPaintEngine {
public:
    explicit Engine(QImage& image) : QPaintEngine(AllFeatures), image_(image) {}

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
        const PathCost cost = costOf(path, painter_.transform(), painter_.pen(), image_.rect());
        const bool isSmooth = cost.smooth() <= left_ * kSmoothShare;
        if (!pay(isSmooth ? cost.smooth() : cost.plain()))
            return;
        const bool wasSmooth = painter_.testRenderHint(QPainter::Antialiasing);
        painter_.setRenderHint(QPainter::Antialiasing, wasSmooth && isSmooth);
        painter_.drawPath(path);
        painter_.setRenderHint(QPainter::Antialiasing, wasSmooth);
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
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
    bool pay(double cost) {
        left_ -= cost;
        return left_ >= 0;
    }

    QImage& image_;
    QPainter painter_;
    double left_ = kBudget;
};

BoundedCanvas::BoundedCanvas(QSize size)
    : image_(size, QImage::Format_ARGB32_Premultiplied), engine_(std::make_unique<Engine>(image_)) {
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

} // namespace platform
