#include "lens/screen_view.h"

#include "common/french_number.h"
#include "common/qt_text.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace lens {

namespace {

constexpr int kSide = 116;          ///< of the screen, pixels
constexpr int kCaption = 20;        ///< height of the line below it
constexpr int kSamples = 160;       ///< places of the lens whose light is added up
constexpr double kLargestSpot = 10; ///< radius, pixels: as fine as so many places can show
constexpr QRgb kDark = 0xff23211c;
constexpr QRgb kLight = 0xfffff0a0;

/// The letter F, 1 high and 0.66 wide, its middle at the origin: it is no mirror image of itself,
/// neither upright nor upside down.
QPainterPath letter() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{-0.33, -0.5},
                               {0.33, -0.5},
                               {0.33, -0.32},
                               {-0.15, -0.32},
                               {-0.15, -0.09},
                               {0.17, -0.09},
                               {0.17, 0.09},
                               {-0.15, 0.09},
                               {-0.15, 0.5},
                               {-0.33, 0.5}}));
    return path;
}

/// Width of the screen that is shown, cm: so much that the image has room, by large steps, so that
/// images can be compared.
double shownWidth(double height) {
    for (const double width : {2.0, 6.0, 20.0})
        if (std::fabs(height) < 0.8 * width)
            return width;
    return 60;
}

/// A letter of that height on a square of `pixels` times `pixels`, its middle beside that of the
/// square, white on black.
QImage sharpLetter(int pixels, double height, QPointF beside) {
    static const QPainterPath path = letter();
    QImage image(pixels, pixels, QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QPointF(pixels / 2.0, pixels / 2.0) + beside);
    painter.scale(height, height);
    painter.fillPath(path, Qt::white);
    return image;
}

/// A letter each of whose points is a spot of that radius; pixels. It adds up the light that comes
/// through places evenly spread over the lens: each gives a sharp letter beside the others.
QImage spreadLetter(int pixels, double height, double radius) {
    const int samples = radius * 2 < 1 ? 1 : kSamples;
    std::vector<int> sum(static_cast<std::size_t>(pixels) * static_cast<std::size_t>(pixels));
    for (int i = 0; i < samples; ++i) {
        // A sunflower's seeds: even over the disc.
        const double distance = samples == 1 ? 0 : radius * std::sqrt((i + 0.5) / samples);
        const double angle = i * std::numbers::pi * (3 - std::sqrt(5.0));
        const QImage one =
            sharpLetter(pixels, height, distance * QPointF(std::cos(angle), std::sin(angle)));
        auto at = sum.begin();
        for (int y = 0; y < pixels; ++y)
            for (int x = 0; x < pixels; ++x)
                *at++ += one.constScanLine(y)[x];
    }
    QImage image(pixels, pixels, QImage::Format_RGB32);
    auto at = sum.cbegin();
    for (int y = 0; y < pixels; ++y)
        for (int x = 0; x < pixels; ++x)
            reinterpret_cast<QRgb*>(image.scanLine(y))[x] =
                look::blend(kLight, kDark, *at++ / 255.0 / samples);
    return image;
}

} // namespace

ScreenView::ScreenView(Bench& bench, QWidget* parent) : QWidget(parent), bench_(bench) {
    setFixedSize(kSide, kSide + kCaption);
    bench_.onChanged([this] { show(); });
    show();
}

void ScreenView::show() {
    setAccessibleName(QStringLiteral("Sur l’écran\u00A0: ") +
                      common::qtText(describeScreen(bench_)));
    update();
}

/// What the screen shows, in pixels of the device or, of what is blurred anyhow, in coarser ones:
/// the places of the lens would be seen one by one.
QImage ScreenView::picture(double side) const {
    const Arrangement& arrangement = bench_.arrangement();
    const double height = heightOnScreen(arrangement);
    const double scale = side / shownWidth(height); // px a cm
    const double radius = bench_.image().spot(arrangement.screen) / 2 * scale;
    const double coarse = std::max(1.0, radius / kLargestSpot);
    return spreadLetter(std::max(1, static_cast<int>(std::lround(side / coarse))),
                        height * scale / coarse, radius / coarse);
}

void ScreenView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(0, 0, kSide, kSide), picture(kSide * devicePixelRatioF()));
    look::drawFrame(painter, QRectF(0, 0, kSide, kSide), 0, look::kEdge, Qt::NoBrush);
    // How much a centimetre is.
    const double width = shownWidth(heightOnScreen(bench_.arrangement()));
    const double bar = width < 5 ? 0.5 : width < 10 ? 2 : width < 30 ? 5 : 20;
    const double length = bar / width * kSide;
    painter.setPen(QPen(QColor::fromRgb(look::kPaper), look::crisp(painter, 1.5)));
    const double y = look::snapped(painter, kSide - 8);
    painter.drawLine(QPointF(6, y), QPointF(6 + length, y));
    painter.setFont(look::interfaceFont(look::kSmallPx));
    painter.drawText(QPointF(6, y - 5),
                     common::qtText(common::frenchDigits(bar, 2)) + QStringLiteral("\u00A0cm"));
    const bool sharp = bench_.isSharp();
    painter.setFont(
        look::interfaceFont(look::kButtonPx, sharp ? look::Weight::Bold : look::Weight::Regular));
    painter.setPen(QColor::fromRgb(sharp ? look::kGreen : look::kMuted));
    painter.drawText(QRectF(0, kSide, kSide, kCaption), Qt::AlignHCenter | Qt::AlignBottom,
                     common::qtText(describeScreen(bench_)));
}

} // namespace lens
