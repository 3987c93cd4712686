#include "help/sheet_recorder.h"

#include "page/twips.h"

#include <QBuffer>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace help {

namespace {

using page::kTwipsPerPixel;

constexpr int kDpi = 96;
constexpr double kPointsPerPixel = 72.0 / kDpi;

/// The dot of a list in the text's face: its middle above the foot of the letters, and its width,
/// in parts of their size.
constexpr double kDotHeight = 0.37;
constexpr double kDotWidth = 0.35;

/// Pixels that stand in a document.
class PixelPicture : public page::Picture {
public:
    explicit PixelPicture(const QImage& image)
        : image_(image.hasAlphaChannel()
                     ? image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                     : image.convertToFormat(QImage::Format_RGB32)) {
        QBuffer file(&bytes_);
        image_.save(&file, "PNG");
    }

    QSize size() const override { return image_.size(); }
    QImage image(QSize pixels) const override {
        return pixels == image_.size()
                   ? image_
                   : image_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    page::PictureFormat format() const override { return page::PictureFormat::Png; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    QImage image_;
    QByteArray bytes_;
};

page::Font fontOf(const QFont& font) {
    const double pixels = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * 4 / 3;
    return {QStringLiteral("Arial"), std::round(pixels) * kPointsPerPixel, font.bold(),
            font.italic(), font.underline()};
}

} // namespace

/// Takes all that a painter does as it stands, so that the painter hands over no more than that.
class SheetRecorder::Engine : public QPaintEngine {
public:
    Engine(SheetRecorder& owner, const page::TextMetrics& metrics)
        : QPaintEngine(AllFeatures), owner_(owner), metrics_(metrics) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& now) override {
        const auto changed = now.state();
        if (changed & DirtyTransform)
            shift_ = {now.transform().dx(), now.transform().dy()};
        if (changed & DirtyPen)
            pen_ = now.pen();
        if (changed & DirtyBrush)
            brush_ = now.brush();
    }

    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        const page::Font font = fontOf(item.font());
        const QPointF foot = place + shift_;
        if (foot.y() < 0 || foot.y() > owner_.size_.height())
            return;
        owner_.operations_.emplace_back(
            page::TextOperation{page::SurfaceId::Printer, foot.x() * kTwipsPerPixel,
                                foot.y() * kTwipsPerPixel - metrics_.ascent(font), item.text(),
                                font, pen_.color().rgb(), item.width() * kTwipsPerPixel});
    }

    void drawRects(const QRectF* rects, int count) override {
        for (int i = 0; i < count; ++i)
            fill(rects[i]);
    }

    /// Edges of tables, as polygons that are rectangles.
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode) override {
        QPolygonF polygon;
        for (int i = 0; i < count; ++i)
            polygon << points[i];
        fill(polygon.boundingRect());
    }

    void drawPath(const QPainterPath& path) override { fill(path.boundingRect()); }

    void drawEllipse(const QRectF& dot) override {
        page::Font font;
        font.points = std::round(dot.width() / kDotWidth) * kPointsPerPixel;
        const QString sign = QStringLiteral("•");
        const double width = metrics_.width(font, sign);
        const QPointF middle = (dot.center() + shift_) * kTwipsPerPixel;
        const double foot =
            middle.y() + kDotHeight * page::fontPixels(font.points) * kTwipsPerPixel;
        if (middle.y() >= 0 && middle.y() <= owner_.size_.height() * kTwipsPerPixel)
            owner_.operations_.emplace_back(page::TextOperation{
                page::SurfaceId::Printer, middle.x() - width / 2, foot - metrics_.ascent(font),
                sign, font, brush_.color().rgb(), width});
    }

    void drawPixmap(const QRectF& place, const QPixmap& picture, const QRectF& part) override {
        drawImage(place, picture.toImage(), part, Qt::AutoColor);
    }

    void drawImage(const QRectF& place, const QImage& picture, const QRectF&,
                   Qt::ImageConversionFlags) override {
        const QRectF shown = place.translated(shift_);
        if (!(QRectF(QPointF(), owner_.size_).intersects(shown)) || picture.isNull())
            return;
        owner_.operations_.emplace_back(page::PictureOperation{
            page::SurfaceId::Printer, shown.x() * kTwipsPerPixel, shown.y() * kTwipsPerPixel,
            shown.width() * kTwipsPerPixel, shown.height() * kTwipsPerPixel,
            std::make_shared<PixelPicture>(picture), QString(), false});
    }

private:
    void fill(const QRectF& rect) {
        const QRectF shown = rect.translated(shift_) & QRectF(QPointF(), owner_.size_);
        if (brush_.style() == Qt::NoBrush || shown.isEmpty())
            return;
        owner_.operations_.emplace_back(page::FillOperation{
            page::SurfaceId::Printer, shown.x() * kTwipsPerPixel, shown.y() * kTwipsPerPixel,
            shown.width() * kTwipsPerPixel, shown.height() * kTwipsPerPixel, brush_.color().rgb(),
            page::FillMode::Copy});
    }

    SheetRecorder& owner_;
    const page::TextMetrics& metrics_;
    QPointF shift_;
    QPen pen_;
    QBrush brush_;
};

SheetRecorder::SheetRecorder(QSizeF size, const page::TextMetrics& metrics)
    : size_(size), engine_(std::make_unique<Engine>(*this, metrics)) {}
SheetRecorder::~SheetRecorder() = default;

QPaintEngine* SheetRecorder::paintEngine() const {
    return engine_.get();
}

int SheetRecorder::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
        return static_cast<int>(std::ceil(size_.width()));
    case PdmHeight:
        return static_cast<int>(std::ceil(size_.height()));
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return kDpi;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace help
