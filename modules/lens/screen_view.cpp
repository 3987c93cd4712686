#include "lens/screen_view.h"

#include "common/french_number.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <numbers>

namespace lens {

namespace {

constexpr int kSide = 116;    ///< of the screen, pixels
constexpr int kCaption = 20;  ///< height of the line below it
constexpr int kSamples = 160; ///< places of the lens whose light is added up
constexpr QRgb kDark = 0xff23211c;
constexpr QRgb kLight = 0xfffff0a0;

/// The letter F, 1 high and 0.66 wide, its middle at the origin: it is no mirror image of itself,
/// neither upright nor upside down.
QPainterPath letter() {
    QPainterPath path;
    path.addRect(-0.33, -0.5, 0.18, 1);
    path.addRect(-0.33, -0.5, 0.66, 0.18);
    path.addRect(-0.33, -0.09, 0.5, 0.18);
    return path.simplified();
}

/// Width of the screen that is shown, cm: so much that the image has room, by large steps, so that
/// images can be compared.
double shownWidth(double height) {
    for (const double width : {2.0, 6.0, 20.0})
        if (std::fabs(height) < 0.8 * width)
            return width;
    return 60;
}

} // namespace

ScreenView::ScreenView(Bench& bench, QWidget* parent) : QWidget(parent), bench_(bench) {
    setFixedSize(kSide, kSide + kCaption);
    bench_.onChanged([this] { show(); });
    show();
}

void ScreenView::show() {
    setAccessibleName(QStringLiteral("Sur l’écran\u00A0: ") + describeScreen(bench_));
    update();
}

/// Adds up the light that comes through places evenly spread over the lens: each gives a sharp
/// letter, beside the others by as much as the screen is off the image.
QImage ScreenView::picture(double side, double ratio) const {
    const int pixels = std::max(1, static_cast<int>(std::lround(side * ratio)));
    QImage image(pixels, pixels, QImage::Format_RGB32);
    image.fill(kDark);
    const Arrangement& arrangement = bench_.arrangement();
    const double height = heightOnScreen(arrangement);
    const double scale = pixels / shownWidth(height); // px a cm
    const double radius = bench_.image().spot(arrangement.screen) / 2 * scale;
    const QPainterPath path = letter();
    QImage sum(image.size(), QImage::Format_Grayscale8);
    sum.fill(0);
    std::vector<int> total(static_cast<std::size_t>(pixels) * static_cast<std::size_t>(pixels));
    const int samples = radius * 2 < 1 ? 1 : kSamples;
    for (int i = 0; i < samples; ++i) {
        // A sunflower's seeds: even over the disc.
        const double distance = samples == 1 ? 0 : radius * std::sqrt((i + 0.5) / samples);
        const double angle = i * std::numbers::pi * (3 - std::sqrt(5.0));
        sum.fill(0);
        QPainter painter(&sum);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(pixels / 2.0 + distance * std::cos(angle),
                          pixels / 2.0 + distance * std::sin(angle));
        painter.scale(height * scale, height * scale);
        painter.fillPath(path, Qt::white);
        painter.end();
        for (int y = 0; y < pixels; ++y) {
            const uchar* line = sum.constScanLine(y);
            int* row = total.data() + static_cast<std::ptrdiff_t>(y) * pixels;
            for (int x = 0; x < pixels; ++x)
                row[x] += line[x];
        }
    }
    for (int y = 0; y < pixels; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < pixels; ++x)
            line[x] = look::blend(
                kLight, kDark, total[static_cast<std::size_t>(y * pixels + x)] / 255.0 / samples);
    }
    return image;
}

void ScreenView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    painter.drawImage(QRectF(0, 0, kSide, kSide), picture(kSide, ratio));
    look::drawFrame(painter, QRectF(0, 0, kSide, kSide), 0, look::kEdge, Qt::NoBrush);
    // How much a centimetre is.
    const double width = shownWidth(heightOnScreen(bench_.arrangement()));
    const double bar = width < 5 ? 0.5 : width < 10 ? 2 : width < 30 ? 5 : 20;
    const double length = bar / width * kSide;
    painter.setPen(QPen(QColor::fromRgb(look::kPaper), look::crisp(painter, 1.5)));
    const double y = look::snapped(painter, kSide - 8);
    painter.drawLine(QPointF(6, y), QPointF(6 + length, y));
    painter.setFont(look::interfaceFont(look::kSmallPx));
    painter.drawText(QPointF(6, y - 5), common::frenchDigits(bar, 2) + QStringLiteral("\u00A0cm"));
    const bool sharp = bench_.isSharp();
    painter.setFont(
        look::interfaceFont(look::kButtonPx, sharp ? look::Weight::Bold : look::Weight::Regular));
    painter.setPen(QColor::fromRgb(sharp ? look::kGreen : look::kMuted));
    painter.drawText(QRectF(0, kSide, kSide, kCaption), Qt::AlignHCenter | Qt::AlignBottom,
                     describeScreen(bench_));
}

} // namespace lens
