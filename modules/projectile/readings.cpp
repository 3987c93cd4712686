#include "projectile/readings.h"

#include "common/french_number.h"
#include "common/reading.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

namespace projectile {

namespace {

constexpr int kEdges = 6; ///< above the first line and below the last

/// Narrower, the longest numbers would touch: "v_y = −98,00 m/s".
constexpr int kLeastForTwoLines = 600;

common::Reading reading(const char16_t* name, double value, const char* unit, bool hidden = false) {
    const QString number = hidden ? QStringLiteral("?") : common::frenchNumber(value, 2);
    return {QString::fromUtf16(name), number + u'\u00A0' + QString::fromUtf8(unit)};
}

} // namespace

Readings::Readings(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    setFixedHeight(2 * common::kReadingHeight + kEdges);
    setAccessibleName(QStringLiteral("Valeurs à l’instant affiché et pour le vol entier"));
    experiment_.onChanged([this] { update(); });
    experiment_.onMoved([this] { update(); });
}

void Readings::setFlightHidden(bool hidden) {
    flightHidden_ = hidden;
    update();
}

void Readings::resizeEvent(QResizeEvent*) {
    setFixedHeight((width() < kLeastForTwoLines ? 4 : 2) * common::kReadingHeight + kEdges);
}

void Readings::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    const Moment now = experiment_.now();
    const Flight& flight = experiment_.flight();
    const bool wide = width() >= kLeastForTwoLines;
    const double next = common::paintReadings(
        painter, kEdges / 2, width(), QStringLiteral("À l’instant"),
        {reading(u"x", now.x, "m"), reading(u"y", now.y, "m"), reading(u"v_x", now.vx, "m/s"),
         reading(u"v_y", now.vy, "m/s"), reading(u"v", now.speed(), "m/s")},
        wide ? 5 : 3);
    common::paintReadings(
        painter, next, width(), QStringLiteral("Vol entier"),
        {reading(u"\\text{portée}", flight.range(), "m", flightHidden_),
         reading(u"\\text{sommet}", flight.apex().y, "m", flightHidden_),
         reading(u"\\text{durée}", flight.duration(), "s", flightHidden_),
         reading(u"\\text{arrivée}", flight.landing().speed(), "m/s", flightHidden_)},
        wide ? 4 : 2);
}

} // namespace projectile
