#include "projectile/trajectory_plot.h"

#include "common/formula.h"
#include "common/french_number.h"
#include "common/qt_text.h"
#include "common/vector_painter.h"
#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "projectile/launch_text.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace projectile {

namespace {

// Vectors are drawn in the same scales whatever the flight, so that they can be compared.
constexpr double kPixelsPerSpeed = 4;        ///< px for 1 m/s
constexpr double kPixelsPerAcceleration = 5; ///< px for 1 m/s²

constexpr QRgb kSpeedInk = 0xffb3261e;
constexpr QRgb kAccelerationInk = 0xff6a3d9a;

constexpr double kTop = 30; ///< room for the name of the axis
constexpr double kRight = 16;
constexpr double kBall = 6;
constexpr double kPoint = 3.5;
constexpr double kReach = 12; ///< how near the pointer must be to the head of the velocity

/// Of the drawing's width and height, around what happens.
constexpr double kAir = 0.1;
constexpr double kGround = 0.05;

/// A drawing shows at least this much, m.
constexpr double kLeastExtent = 1;

constexpr int kPathPoints = 240;

struct Stroke {
    QRgb ink;
    Qt::PenStyle style;
};

/// Distinct in colour, in lightness and in their dashes; none is that of a vector.
constexpr std::array<Stroke, Experiment::kMostKept> kStrokes = {{
    {0xff1c7540, Qt::DashLine},
    {0xffa65a00, Qt::DashDotLine},
    {0xff00737d, Qt::DotLine},
    {0xff5b4a2f, Qt::DashDotDotLine},
    {0xffa0326a, Qt::DashLine},
}};

/// Part of a formula.
QString metres(double value, double perPixel) {
    const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(perPixel))), 0, 3);
    return common::qtText(common::frenchNumber(value, decimals)) +
           QStringLiteral("\\text{\u00A0m}");
}

} // namespace

TrajectoryPlot::TrajectoryPlot(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    look::setAccessibleRole(*this, QAccessible::Graphic);
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Trajectoire du projectile"));
    const auto fitAndShow = [this] {
        fit();
        update();
    };
    experiment_.onChanged(fitAndShow);
    experiment_.onKeptChanged(fitAndShow);
    experiment_.onMoved([this] { update(); });
}

void TrajectoryPlot::setShown(const Shown& shown) {
    shown_ = shown;
    update();
}

void TrajectoryPlot::resizeEvent(QResizeEvent*) {
    fit();
}

void TrajectoryPlot::fit() {
    // While somebody pulls at the velocity, a scale that changes under the pointer would be a
    // nuisance.
    if (aiming_)
        return;
    double right = kLeastExtent;
    double top = kLeastExtent;
    const auto include = [&](double x, double y) {
        right = std::max(right, x);
        top = std::max(top, y);
    };
    const auto includeFlight = [&](const Flight& flight) {
        include(flight.range(), flight.apex().y);
    };
    includeFlight(experiment_.flight());
    std::for_each(experiment_.kept().begin(), experiment_.kept().end(), includeFlight);
    for (const Landmark& mark : experiment_.landmarks())
        include(mark.x, mark.y);
    const QRectF area =
        QRectF(rect()).adjusted(common::Axes::kLeft, kTop, -kRight, -common::Axes::kBelow);
    const double extent = std::max(right, top);
    axes_ = common::Axes::withEqualScales(area, {-kGround * extent, right + kAir * extent},
                                          {-kGround * extent, top * (1 + kAir)});
}

void TrajectoryPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kPaper));
    axes_.paint(painter, QStringLiteral("x\\text{ (m)}"), QStringLiteral("y\\text{ (m)}"));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setClipRect(axes_.area());
    paintGround(painter);
    paintLandmarks(painter);
    for (std::size_t i = 0; i < experiment_.kept().size(); ++i)
        paintPath(painter, experiment_.kept()[i], kStrokes.at(i).ink, kStrokes.at(i).style);
    paintPath(painter, experiment_.flight(), look::kBlue, Qt::SolidLine);
    if (shown_.points)
        paintPoints(painter);
    painter.restore();
    paintVectors(painter);
    paintProjectile(painter);
    paintLegend(painter);
    paintScales(painter);
    paintReading(painter);
}

void TrajectoryPlot::paintGround(QPainter& painter) const {
    const QRectF area = axes_.area();
    const double ground = common::sharp(painter, axes_.pixel(0, 0).y());
    const double edge = axes_.pixel(0, 0).x();
    const double height = experiment_.launch().height;
    QPainterPath solid;
    solid.addRect(QRectF(area.left(), ground, area.width(), area.bottom() - ground));
    if (height > 0) {
        const double top = axes_.pixel(0, height).y();
        solid.addRect(QRectF(area.left(), top, edge - area.left(), ground - top));
    }
    painter.fillPath(solid.simplified(), QColor::fromRgb(look::kScrollTrack));
    painter.setPen(QPen(QColor::fromRgb(look::kEdge), 1.5));
    QPolygonF outline = {{area.right(), ground}, {edge, ground}};
    if (height > 0) {
        const double top = common::sharp(painter, axes_.pixel(0, height).y());
        outline << QPointF(edge, top) << QPointF(area.left(), top);
    } else {
        outline << QPointF(area.left(), ground);
    }
    painter.drawPolyline(outline);
}

void TrajectoryPlot::paintLandmarks(QPainter& painter) const {
    painter.setFont(look::interfaceFont(look::kButtonPx));
    for (const Landmark& mark : experiment_.landmarks()) {
        const QPointF at = axes_.pixel(mark.x, mark.y);
        painter.setPen(QPen(QColor::fromRgb(0xffa65a00), 2));
        painter.setBrush(QColor::fromRgb(look::kPaper));
        painter.drawEllipse(at, 9, 4);
        painter.drawLine(at - QPointF(3, 0), at + QPointF(3, 0));
        painter.drawLine(at - QPointF(0, 3), at + QPointF(0, 3));
        painter.setPen(QColor::fromRgb(0xff8a4b00));
        painter.drawText(at + QPointF(14, 4), QString::fromStdU16String(mark.name));
    }
}

void TrajectoryPlot::paintPath(QPainter& painter, const Flight& flight, QRgb ink,
                               Qt::PenStyle style) const {
    QPolygonF path;
    for (int i = 0; i <= kPathPoints; ++i) {
        const Moment moment = flight.at(flight.duration() * i / kPathPoints);
        path << axes_.pixel(moment.x, moment.y);
    }
    painter.setPen(QPen(QColor::fromRgb(ink), 2, style, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(path);
}

void TrajectoryPlot::paintPoints(QPainter& painter) const {
    const Flight& flight = experiment_.flight();
    const double interval = strobeInterval(flight.duration());
    painter.setPen(QPen(QColor::fromRgb(look::kBlue), 1.3));
    // Those that the projectile has passed are filled.
    for (int i = 0; i * interval <= flight.duration(); ++i) {
        const Moment moment = flight.at(i * interval);
        const bool passed = moment.t <= experiment_.playback().time();
        painter.setBrush(QColor::fromRgb(passed ? 0xffbcd0e8 : look::kPaper));
        painter.drawEllipse(axes_.pixel(moment.x, moment.y), kPoint, kPoint);
    }
}

QPointF TrajectoryPlot::projectilePixel() const {
    const Moment now = experiment_.now();
    return axes_.pixel(now.x, now.y);
}

void TrajectoryPlot::paintProjectile(QPainter& painter) const {
    painter.setPen(QPen(QColor::fromRgb(look::kPaper), 1.5));
    painter.setBrush(QColor::fromRgb(look::kBlue));
    painter.drawEllipse(projectilePixel(), kBall, kBall);
}

QPointF TrajectoryPlot::speedHead() const {
    const Moment now = experiment_.now();
    return projectilePixel() + QPointF(now.vx, -now.vy) * kPixelsPerSpeed;
}

void TrajectoryPlot::paintVectors(QPainter& painter) const {
    const Moment now = experiment_.now();
    const QPointF from = projectilePixel();
    const QPointF head = speedHead();
    painter.save();
    painter.setClipRect(
        axes_.area().adjusted(-common::Axes::kLeft, -kTop, kRight, common::Axes::kBelow));
    if (shown_.components) {
        common::paintVector(painter, from, {head.x(), from.y()}, kSpeedInk,
                            QStringLiteral("\\vec{v}_x"), Qt::DashLine);
        common::paintVector(painter, from, {from.x(), head.y()}, kSpeedInk,
                            QStringLiteral("\\vec{v}_y"), Qt::DashLine);
        painter.setPen(QPen(QColor::fromRgb(kSpeedInk), 1, Qt::DotLine));
        painter.drawLine(head, {head.x(), from.y()});
        painter.drawLine(head, {from.x(), head.y()});
    }
    if (shown_.acceleration) {
        const Acceleration a = experiment_.flight().acceleration(now);
        common::paintVector(painter, from, from + QPointF(a.x, -a.y) * kPixelsPerAcceleration,
                            kAccelerationInk, QStringLiteral("\\vec{a}"));
    }
    const bool atStart = now.t == 0;
    if (shown_.speed)
        common::paintVector(painter, from, head, kSpeedInk,
                            atStart ? QStringLiteral("\\vec{v}_0") : QStringLiteral("\\vec{v}"));
    painter.restore();
    // The handle by which the throw is aimed.
    if (pointer_ && (aiming_ || canAimAt(*pointer_))) {
        painter.setPen(QPen(QColor::fromRgb(kSpeedInk), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(head, kReach, kReach);
    }
}

void TrajectoryPlot::paintLegend(QPainter& painter) const {
    if (experiment_.kept().empty())
        return;
    constexpr double kLine = 18;
    constexpr double kSample = 30;
    struct Row {
        Stroke stroke;
        common::Formula formula;
    };
    const auto row = [](const Stroke& stroke, const Flight& flight) {
        return Row{stroke, {common::qtText(describe(flight.launch())), look::kButtonPx}};
    };
    std::vector<Row> rows = {row({look::kBlue, Qt::SolidLine}, experiment_.flight())};
    for (std::size_t i = 0; i < experiment_.kept().size(); ++i)
        rows.push_back(row(kStrokes.at(i), experiment_.kept()[i]));
    double width = 0;
    for (const Row& each : rows)
        width = std::max(width, each.formula.width());
    const double left = axes_.area().right() - width - kSample - 24;
    const QRectF box(look::snapped(painter, left), look::snapped(painter, axes_.area().top() + 4),
                     std::ceil(width) + kSample + 20, static_cast<double>(rows.size()) * kLine + 8);
    look::drawFrame(painter, box, 0, look::kRule, QColor::fromRgb(look::kPaper));
    double y = box.top() + 4 + kLine / 2;
    for (const Row& each : rows) {
        painter.setPen(QPen(QColor::fromRgb(each.stroke.ink), 2, each.stroke.style));
        painter.drawLine(QPointF(box.left() + 8, y), QPointF(box.left() + 8 + kSample, y));
        painter.setPen(QColor::fromRgb(look::kInk));
        each.formula.paint(painter, {box.left() + kSample + 14, y + 4});
        y += kLine;
    }
}

void TrajectoryPlot::paintScales(QPainter& painter) const {
    const double y = axes_.area().bottom() + common::Axes::kBelow - 10;
    double x = axes_.area().left();
    painter.setFont(look::interfaceFont(look::kSmallPx));
    const auto scale = [&](QRgb ink, double length, const QString& text) {
        common::paintVector(painter, {x, y}, {x + length, y}, ink, {});
        painter.setPen(QColor::fromRgb(look::kMuted));
        painter.drawText(QPointF(x + length + 6, y + 4), text);
        x += length + 70;
    };
    if (shown_.speed || shown_.components)
        scale(kSpeedInk, 10 * kPixelsPerSpeed, QStringLiteral("10\u00A0m/s"));
    if (shown_.acceleration)
        scale(kAccelerationInk, 10 * kPixelsPerAcceleration, QStringLiteral("10\u00A0m/s²"));
    if (shown_.points) {
        painter.setPen(QPen(QColor::fromRgb(look::kBlue), 1.3));
        painter.setBrush(QColor::fromRgb(0xffbcd0e8));
        painter.drawEllipse(QPointF(x + 4, y), kPoint, kPoint);
        painter.setPen(QColor::fromRgb(look::kMuted));
        const double interval = strobeInterval(experiment_.flight().duration());
        painter.drawText(QPointF(x + 14, y + 4),
                         QStringLiteral("un point toutes les %1\u00A0s")
                             .arg(common::qtText(common::frenchDigits(interval, 2))));
    }
}

void TrajectoryPlot::paintReading(QPainter& painter) const {
    if (!pointer_ || aiming_ || !axes_.area().contains(*pointer_))
        return;
    const QPointF at = axes_.value(*pointer_);
    const double perPixel = axes_.value(*pointer_ + QPointF(1, 0)).x() - at.x();
    const common::Formula reading(
        QStringLiteral("\\text{pointeur\u00A0: }x\u00A0=\u00A0%1, y\u00A0=\u00A0%2")
            .arg(metres(at.x(), perPixel), metres(at.y(), perPixel)),
        look::kButtonPx);
    painter.setPen(QColor::fromRgb(look::kMuted));
    reading.paint(painter, {axes_.area().right() - reading.width(), 17});
}

bool TrajectoryPlot::canAimAt(const QPointF& pixel) const {
    const QPointF distance = pixel - speedHead();
    return shown_.speed && experiment_.playback().time() == 0 &&
           std::hypot(distance.x(), distance.y()) <= kReach &&
           !(experiment_.isLocked(Parameter::Speed) && experiment_.isLocked(Parameter::Angle));
}

void TrajectoryPlot::aimAt(const QPointF& pixel) {
    const QPointF arrow = pixel - projectilePixel();
    const double speed = std::hypot(arrow.x(), arrow.y()) / kPixelsPerSpeed;
    const double angle = std::atan2(-arrow.y(), arrow.x()) * 180 / std::numbers::pi;
    // As fine as the sliders: whole degrees, half metres a second.
    experiment_.aim(std::round(speed * 2) / 2, std::round(angle));
}

void TrajectoryPlot::mousePressEvent(QMouseEvent* event) {
    aiming_ = event->button() == Qt::LeftButton && canAimAt(event->position());
}

void TrajectoryPlot::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position();
    if (aiming_)
        aimAt(*pointer_);
    setCursor(aiming_               ? Qt::ClosedHandCursor
              : canAimAt(*pointer_) ? Qt::OpenHandCursor
                                    : Qt::CrossCursor);
    update();
}

void TrajectoryPlot::mouseReleaseEvent(QMouseEvent*) {
    aiming_ = false;
    fit();
    update();
}

void TrajectoryPlot::leaveEvent(QEvent*) {
    pointer_.reset();
    update();
}

} // namespace projectile
