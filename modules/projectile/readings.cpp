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

common::Reading reading(const char16_t* name, const char16_t* spoken, double value,
                        const char16_t* unit, bool hidden = false) {
    const QString number = hidden ? QStringLiteral("?") : common::frenchNumber(value, 2);
    return {QString::fromUtf16(name), number + u'\u00A0' + QString::fromUtf16(unit),
            QString::fromUtf16(spoken)};
}

} // namespace

Readings::Readings(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    look::setAccessibleRole(*this, QAccessible::StaticText);
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

common::ReadingGroup Readings::atMoment() const {
    const Moment now = experiment_.now();
    return {QStringLiteral("À l’instant"),
            {reading(u"x", u"x", now.x, u"m"), reading(u"y", u"y", now.y, u"m"),
             reading(u"v_x", u"v indice x", now.vx, u"m/s"),
             reading(u"v_y", u"v indice y", now.vy, u"m/s"),
             reading(u"v", u"v", now.speed(), u"m/s")},
            width() >= kLeastForTwoLines ? 5U : 3U};
}

common::ReadingGroup Readings::ofFlight() const {
    const Flight& flight = experiment_.flight();
    const bool hidden = flightHidden_;
    return {QStringLiteral("Vol entier"),
            {reading(u"\\text{portée}", u"portée", flight.range(), u"m", hidden),
             reading(u"\\text{sommet}", u"sommet", flight.apex().y, u"m", hidden),
             reading(u"\\text{durée}", u"durée", flight.duration(), u"s", hidden),
             reading(u"\\text{arrivée}", u"arrivée", flight.landing().speed(), u"m/s", hidden)},
            width() >= kLeastForTwoLines ? 4U : 2U};
}

QString Readings::toldInWords() const {
    const QString moment = common::readingsInWords(atMoment());
    return flightHidden_ ? moment : moment + u' ' + common::readingsInWords(ofFlight());
}

void Readings::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    const double next = common::paintReadings(painter, kEdges / 2, width(), atMoment());
    common::paintReadings(painter, next, width(), ofFlight());
}

} // namespace projectile
