#include "projectile/readings.h"

#include "common/formula.h"
#include "common/french_number.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

#include <vector>

namespace projectile {

namespace {

constexpr int kLineHeight = 26;
constexpr double kNameWidth = 78;
constexpr double kBaseline = 18;
constexpr int kEdges = 6; ///< above the first line and below the last

/// Narrower, the longest numbers would touch: "v_y = −98,00 m/s".
constexpr int kLeastForTwoLines = 600;

struct Reading {
    const char16_t* name; ///< a formula
    double value;
    const char16_t* unit;
};

/// Readings of which no line has more than `perLine`. Returns the top of the next line.
double paintGroup(QPainter& painter, double top, double width, const QString& name,
                  const std::vector<Reading>& readings, std::size_t perLine, bool hidden) {
    painter.setFont(look::interfaceFont(look::kButtonPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(QPointF(10, top + kBaseline), name);
    const double cell = (width - kNameWidth - 8) / static_cast<double>(perLine);
    double x = kNameWidth;
    for (std::size_t i = 0; i < readings.size(); ++i) {
        const Reading& reading = readings[i];
        if (i == perLine) {
            x = kNameWidth;
            top += kLineHeight;
        }
        painter.setPen(QColor::fromRgb(look::kMuted));
        const common::Formula symbol(
            QString::fromUtf16(reading.name) + QStringLiteral("\u00A0=\u00A0"), look::kLabelPx);
        symbol.paint(painter, {x, top + kBaseline});
        painter.setPen(QColor::fromRgb(look::kInk));
        painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
        const QString value = hidden ? QStringLiteral("?") : common::frenchNumber(reading.value, 2);
        painter.drawText(QPointF(x + symbol.width(), top + kBaseline),
                         value + u'\u00A0' + QString::fromUtf16(reading.unit));
        x += cell;
    }
    return top + kLineHeight;
}

} // namespace

Readings::Readings(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    setFixedHeight(2 * kLineHeight + kEdges);
    setAccessibleName(QStringLiteral("Valeurs à l’instant affiché et pour le vol entier"));
    experiment_.onChanged([this] { update(); });
    experiment_.onMoved([this] { update(); });
}

void Readings::setFlightHidden(bool hidden) {
    flightHidden_ = hidden;
    update();
}

void Readings::resizeEvent(QResizeEvent*) {
    setFixedHeight((width() < kLeastForTwoLines ? 4 : 2) * kLineHeight + kEdges);
}

void Readings::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    const Moment now = experiment_.now();
    const Flight& flight = experiment_.flight();
    const bool wide = width() >= kLeastForTwoLines;
    const double next = paintGroup(painter, kEdges / 2, width(), QStringLiteral("À l’instant"),
                                   {{u"x", now.x, u"m"},
                                    {u"y", now.y, u"m"},
                                    {u"v_x", now.vx, u"m/s"},
                                    {u"v_y", now.vy, u"m/s"},
                                    {u"v", now.speed(), u"m/s"}},
                                   wide ? 5 : 3, false);
    paintGroup(painter, next, width(), QStringLiteral("Vol entier"),
               {{u"\\text{portée}", flight.range(), u"m"},
                {u"\\text{sommet}", flight.apex().y, u"m"},
                {u"\\text{durée}", flight.duration(), u"s"},
                {u"\\text{arrivée}", flight.landing().speed(), u"m/s"}},
               wide ? 4 : 2, flightHidden_);
}

} // namespace projectile
