#include "projectile/energy_plot.h"

#include "common/axes.h"
#include "common/formula.h"
#include "common/french_number.h"
#include "common/qt_text.h"
#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"

#include <QPainter>

#include <algorithm>
#include <iterator>

namespace projectile {

namespace {

constexpr double kTop = 44; ///< room for the name of the axis and the legend
constexpr double kRight = 16;
constexpr double kAir = 0.08;
constexpr int kCurvePoints = 200;
constexpr double kLeastEnergy = 1e-3; ///< J; an axis cannot have no length
constexpr double kLeastTime = 0.1;    ///< s

struct Curve {
    QRgb ink;
    Qt::PenStyle style;
    const char* name; ///< a formula
    const char* words;
    double (*value)(const Energies&);
};

const Curve kCurves[] = {
    {look::kRed, Qt::SolidLine, "E_c", "cinétique", [](const Energies& e) { return e.kinetic; }},
    {look::kGreen, Qt::DashLine, "E_p", "potentielle",
     [](const Energies& e) { return e.potential; }},
    {look::kBlue, Qt::DashDotLine, "E_m", "mécanique",
     [](const Energies& e) { return e.mechanical(); }},
};

void paintCurve(QPainter& painter, const common::Axes& axes, const Flight& flight,
                const Curve& curve) {
    QPolygonF line;
    for (int i = 0; i <= kCurvePoints; ++i) {
        const double t = flight.duration() * i / kCurvePoints;
        line << axes.pixel(t, curve.value(flight.energies(flight.at(t))));
    }
    painter.setPen(QPen(QColor::fromRgb(curve.ink), 2, curve.style, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
}

/// "E_c cinétique : 12,3 J", with a piece of its curve before it; without its words where it would
/// not have `room`. Returns where the next one starts.
double paintLegend(QPainter& painter, double x, double room, const Curve& curve, double energy) {
    constexpr double kBaseline = 22;
    constexpr double kSample = 26;
    constexpr double kGaps = 24; ///< behind the piece of curve and behind the legend
    const auto legendWith = [&](const QString& words) {
        return common::Formula(QStringLiteral("%1\\text{%2\u00A0: %3\u00A0J}")
                                   .arg(QString::fromUtf8(curve.name), words,
                                        common::qtText(common::frenchDigits(energy, 4))),
                               look::kLabelPx);
    };
    common::Formula legend = legendWith(u' ' + QString::fromUtf8(curve.words));
    if (kSample + legend.width() + kGaps > room)
        legend = legendWith({});
    painter.setPen(QPen(QColor::fromRgb(curve.ink), 2, curve.style));
    painter.drawLine(QPointF(x, kBaseline - 4), QPointF(x + kSample, kBaseline - 4));
    painter.setPen(QColor::fromRgb(look::kInk));
    legend.paint(painter, {x + kSample + 6, kBaseline});
    return x + kSample + legend.width() + kGaps;
}

} // namespace

EnergyPlot::EnergyPlot(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    look::setAccessibleRole(*this, QAccessible::Graphic);
    setAccessibleName(QStringLiteral("Énergies au cours du temps"));
    experiment_.onChanged([this] { update(); });
    experiment_.onMoved([this] { update(); });
}

void EnergyPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kPaper));
    const Flight& flight = experiment_.flight();
    // Without an engine the mechanical energy is never more than at the start.
    const double most = std::max(kLeastEnergy, flight.energies(flight.start()).mechanical());
    const common::Axes axes(
        QRectF(rect()).adjusted(common::Axes::kLeft, kTop + 14, -kRight, -common::Axes::kBelow),
        {0, std::max(kLeastTime, flight.duration())}, {0, most * (1 + kAir)});
    axes.paint(painter, QStringLiteral("t\\text{ (s)}"), QStringLiteral("E\\text{ (J)}"));
    painter.setRenderHint(QPainter::Antialiasing);
    const Moment now = experiment_.now();
    painter.setPen(QPen(QColor::fromRgb(look::kEdge), 1));
    const double cursor = common::sharp(painter, axes.pixel(now.t, 0).x());
    painter.drawLine(QPointF(cursor, axes.area().top()), QPointF(cursor, axes.area().bottom()));
    double x = common::Axes::kLeft;
    const double room = (width() - x) / static_cast<double>(std::size(kCurves));
    for (const Curve& curve : kCurves) {
        const double energy = curve.value(flight.energies(now));
        paintCurve(painter, axes, flight, curve);
        painter.setPen(QPen(QColor::fromRgb(look::kPaper), 1.5));
        painter.setBrush(QColor::fromRgb(curve.ink));
        painter.drawEllipse(axes.pixel(now.t, energy), 5, 5);
        x = paintLegend(painter, x, room, curve, energy);
    }
}

} // namespace projectile
