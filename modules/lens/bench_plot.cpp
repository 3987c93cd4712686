#include "lens/bench_plot.h"

#include "lens/extent.h"
#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace lens {

namespace {

constexpr double kTop = 30; ///< room for the name of the axis
constexpr double kRight = 16;
constexpr double kReach = 10; ///< how near the pointer must be to what it moves
constexpr double kPoint = 3;
constexpr double kNamePx = 13;

/// The colours of the rays in the course's figures.
constexpr QRgb kRayInks[] = {look::kRed, look::kGreen, 0xffb46400};

QPen linePen(QRgb ink, double width, Qt::PenStyle style = Qt::SolidLine) {
    return QPen(QColor::fromRgb(ink), width, style, Qt::FlatCap);
}

/// A filled head at `to`, for a line that comes from `from`; pixels.
void paintHead(QPainter& painter, QPointF from, QPointF to, double size, QRgb ink) {
    const QLineF line(from, to);
    if (line.length() < size)
        return;
    const QPointF along = QPointF(line.dx(), line.dy()) / line.length();
    const QPointF across(-along.y(), along.x());
    const QPointF neck = to - along * size;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(ink));
    painter.drawPolygon(QPolygonF({to, neck + across * size * 0.42, neck - across * size * 0.42}));
}

} // namespace

BenchPlot::BenchPlot(Bench& bench, QWidget* parent) : QWidget(parent), bench_(bench) {
    setMouseTracking(true);
    look::setAccessibleRole(*this, QAccessible::Graphic);
    setAccessibleName(QStringLiteral("Banc d’optique, vu de côté"));
    bench_.onChanged([this] {
        fit();
        update();
    });
}

void BenchPlot::setShown(const Shown& shown) {
    shown_ = shown;
    update();
}

void BenchPlot::resizeEvent(QResizeEvent*) {
    fit();
}

void BenchPlot::fit() {
    // A scale that changes under the pointer while it pulls would be a nuisance.
    if (grip_ != Grip::None)
        return;
    const Extent extent = extentOf(bench_);
    const QRectF area =
        QRectF(rect()).adjusted(common::Axes::kLeft, kTop, -kRight, -common::Axes::kBelow);
    axes_ = common::Axes(area, {-extent.before, extent.behind}, {-extent.high, extent.high});
}

double BenchPlot::left() const {
    return axes_.value(axes_.area().topLeft()).x();
}

double BenchPlot::right() const {
    return axes_.value(axes_.area().topRight()).x();
}

void BenchPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kPaper));
    axes_.paint(painter, QStringLiteral("x\\text{ (cm)}"), QStringLiteral("y\\text{ (cm)}"));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setClipRect(axes_.area());
    if (shown_.beam && !bench_.hidesLens())
        paintBeam(painter);
    paintAxis(painter);
    paintLens(painter);
    paintScreen(painter);
    if (shown_.rays && !bench_.hidesLens())
        paintRays(painter);
    paintArrows(painter);
    painter.restore();
}

void BenchPlot::paintAxis(QPainter& painter) const {
    const double y = common::sharp(painter, pixel({0, 0}).y());
    QPen pen = linePen(look::kMuted, 1.3);
    pen.setDashPattern({10, 3, 2, 3});
    painter.setPen(pen);
    const QPointF from(axes_.area().left(), y);
    const QPointF to(axes_.area().right(), y);
    painter.drawLine(from, to);
    paintHead(painter, from, to, 9, look::kMuted);
}

void BenchPlot::paintLens(QPainter& painter) const {
    const double x = common::sharp(painter, pixel({0, 0}).x());
    const double top = axes_.area().top() + 6;
    const double foot = axes_.area().bottom() - 6;
    const bool converging = bench_.arrangement().kind == Kind::Converging || bench_.hidesLens();
    painter.setPen(linePen(look::kBlue, 2.5));
    painter.drawLine(QPointF(x, top + 2), QPointF(x, foot - 2));
    // The heads look outwards for a converging lens, inwards for a diverging one.
    constexpr double kHead = 12;
    for (const auto& [end, outward] : {std::pair(top, -1.0), std::pair(foot, 1.0)}) {
        const double tip = converging ? end : end - outward * kHead;
        const double from = converging ? end - outward * 30 : end + outward * 30;
        paintHead(painter, {x, from}, {x, tip}, kHead, look::kBlue);
    }
    paintPoint(painter, {0, 0}, u"O", {6, -8});
    if (bench_.hidesLens())
        return;
    const double focal = bench_.arrangement().focal();
    paintPoint(painter, {-focal, 0}, u"F", {-18, 17});
    paintPoint(painter, {focal, 0}, u"F′", {-18, 17});
}

void BenchPlot::paintPoint(QPainter& painter, QPointF place, const char16_t* name,
                           QPointF offset) const {
    const QPointF at = pixel(place);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(look::kInk));
    painter.drawEllipse(at, kPoint, kPoint);
    painter.setPen(QColor::fromRgb(look::kInk));
    painter.setFont(look::interfaceFont(static_cast<int>(kNamePx), look::Weight::Bold));
    painter.drawText(at + offset, QString::fromUtf16(name));
}

void BenchPlot::paintScreen(QPainter& painter) const {
    const double x = common::sharp(painter, pixel({bench_.arrangement().screen, 0}).x());
    const QRectF area = axes_.area();
    const QRectF board(x, area.top() + 20, 5, area.height() - 40);
    painter.setPen(linePen(look::kMuted, 1));
    painter.setBrush(QColor::fromRgb(bench_.isSharp() ? look::kGreenTint : look::kScrollTrack));
    painter.drawRect(board);
    painter.setFont(look::interfaceFont(look::kSmallPx));
    const double room = area.right() - x;
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(QRectF(std::min(x - 30, x + room - 62), area.top() + 4, 65, 14),
                     Qt::AlignHCenter, QStringLiteral("écran"));
}

/// What goes through the whole lens from B: it meets where the image is.
void BenchPlot::paintBeam(QPainter& painter) const {
    const Arrangement& arrangement = bench_.arrangement();
    const QPointF tip(arrangement.object(), arrangement.height);
    const double end = right();
    QPainterPath beam;
    beam.setFillRule(Qt::WindingFill);
    // Straight lines stay so on axes with two scales: three corners each are enough.
    const auto behind = [&](double height) { return beamHeight(arrangement, height, end); };
    beam.addPolygon(
        QPolygonF({pixel(tip), pixel({0, kLensRadius}), pixel({0, -kLensRadius}), pixel(tip)}));
    beam.addPolygon(QPolygonF({pixel({0, kLensRadius}), pixel({end, behind(kLensRadius)}),
                               pixel({end, behind(-kLensRadius)}), pixel({0, -kLensRadius}),
                               pixel({0, kLensRadius})}));
    painter.fillPath(beam, QColor::fromRgb(look::kMarkTint));
}

void BenchPlot::paintRays(QPainter& painter) const {
    for (const Ray& ray : principalRays(bench_.arrangement(), left(), right())) {
        const QRgb ink = kRayInks[ray.number - 1];
        for (const Segment& part : ray.light) {
            const QPointF from = axes_.pixel(part.from.x, part.from.y);
            const QPointF to = axes_.pixel(part.to.x, part.to.y);
            painter.setPen(linePen(ink, 1.8));
            painter.drawLine(from, to);
            paintHead(painter, from, from + (to - from) * 0.45, 9, ink);
        }
        if (!shown_.extensions)
            continue;
        QPen pen = linePen(ink, 1.3);
        pen.setDashPattern({4, 4});
        painter.setPen(pen);
        for (const Segment& part : ray.extension)
            painter.drawLine(axes_.pixel(part.from.x, part.from.y),
                             axes_.pixel(part.to.x, part.to.y));
    }
}

void BenchPlot::paintArrows(QPainter& painter) const {
    const Arrangement& arrangement = bench_.arrangement();
    painter.setFont(look::interfaceFont(static_cast<int>(kNamePx), look::Weight::Bold));
    const auto arrow = [&](double place, double height, bool solid, const char16_t* foot,
                           QPointF footName, const char16_t* tip, QPointF tipName) {
        const QPointF from = pixel({place, 0});
        const QPointF to = pixel({place, height});
        painter.setPen(linePen(look::kBlue, 3, solid ? Qt::SolidLine : Qt::DotLine));
        const double head = std::min(12.0, QLineF(from, to).length() * 0.7);
        const double up = to.y() < from.y() ? 1 : -1;
        painter.drawLine(from, to + QPointF(0, up * head * 0.8));
        paintHead(painter, from, to, head, look::kBlue);
        painter.setPen(QColor::fromRgb(look::kInk));
        painter.drawText(from + footName, QString::fromUtf16(foot));
        painter.drawText(to + tipName, QString::fromUtf16(tip));
    };
    const Image image = bench_.image();
    if (shown_.image && !bench_.hidesLens() && !image.isAtInfinity())
        arrow(image.place(), image.height(), image.isReal(), u"A′",
              image.isReal() ? QPointF(-20, -6) : QPointF(5, 17), u"B′",
              image.isReal() ? QPointF(-20, 17) : QPointF(-7, -9)); // where no ray goes
    arrow(arrangement.object(), arrangement.height, true, u"A", {-18, 17}, u"B", {-20, 2});
}

BenchPlot::Grip BenchPlot::gripAt(QPointF at) const {
    const Arrangement& arrangement = bench_.arrangement();
    const auto isNear = [&](double place) {
        return std::fabs(at.x() - pixel({place, 0}).x()) <= kReach;
    };
    const bool fixed = bench_.isLocked(Parameter::Distance) && bench_.isLocked(Parameter::Height);
    if (isNear(arrangement.object()) && !fixed)
        return Grip::Object;
    if (isNear(arrangement.screen) && !bench_.isLocked(Parameter::Screen))
        return Grip::Screen;
    return Grip::None;
}

void BenchPlot::pullTo(QPointF at) {
    // As fine as the sliders.
    const QPointF place = axes_.value(at);
    const auto set = [this](Parameter parameter, double value) {
        const double step = quantity(parameter).step;
        bench_.set(parameter, std::round(value / step) * step);
    };
    if (grip_ == Grip::Screen)
        set(Parameter::Screen, place.x());
    else
        set(Parameter::Distance, -place.x());
    if (pullsTip_)
        set(Parameter::Height, place.y());
}

void BenchPlot::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF at = event->position();
    grip_ = gripAt(at);
    const double tip = pixel({0, bench_.arrangement().height}).y();
    pullsTip_ = grip_ == Grip::Object && std::fabs(at.y() - tip) <= kReach;
}

void BenchPlot::mouseMoveEvent(QMouseEvent* event) {
    if (grip_ != Grip::None)
        pullTo(event->position());
    setCursor(grip_ != Grip::None                       ? Qt::ClosedHandCursor
              : gripAt(event->position()) != Grip::None ? Qt::OpenHandCursor
                                                        : Qt::ArrowCursor);
}

void BenchPlot::mouseReleaseEvent(QMouseEvent*) {
    grip_ = Grip::None;
    pullsTip_ = false;
    fit();
    update();
}

} // namespace lens
