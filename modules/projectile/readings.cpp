#include "projectile/readings.h"

#include "common/formula.h"
#include "common/french_number.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

namespace projectile {

namespace {

constexpr int kLineHeight = 26;
constexpr double kNameWidth = 78;
constexpr double kBaseline = 18;
constexpr int kEdges = 6; ///< above the first line and below the last

/// Narrower, the longest numbers would touch: "v_y = −98,00 m/s".
constexpr int kLeastForTwoLines = 600;

} // namespace

Readings::Readings(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    look::setAccessibleRole(*this, QAccessible::StaticText);
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

std::vector<Readings::Group> Readings::groups() const {
    const Moment now = experiment_.now();
    const Flight& flight = experiment_.flight();
    const bool wide = width() >= kLeastForTwoLines;
    return {{QStringLiteral("À l’instant"),
             {{u"x", u"x", now.x, u"m"},
              {u"y", u"y", now.y, u"m"},
              {u"v_x", u"v indice x", now.vx, u"m/s"},
              {u"v_y", u"v indice y", now.vy, u"m/s"},
              {u"v", u"v", now.speed(), u"m/s"}},
             wide ? 5U : 3U,
             false},
            {QStringLiteral("Vol entier"),
             {{u"\\text{portée}", u"portée", flight.range(), u"m"},
              {u"\\text{sommet}", u"sommet", flight.apex().y, u"m"},
              {u"\\text{durée}", u"durée", flight.duration(), u"s"},
              {u"\\text{arrivée}", u"arrivée", flight.landing().speed(), u"m/s"}},
             wide ? 4U : 2U,
             flightHidden_}};
}

QString Readings::valueOf(const Group& group, const Reading& reading) {
    return (group.hidden ? QStringLiteral("?") : common::frenchNumber(reading.value, 2)) +
           u'\u00A0' + QString::fromUtf16(reading.unit);
}

QString Readings::toldInWords() const {
    QString words;
    for (const Group& group : groups()) {
        if (group.hidden)
            continue;
        QStringList numbers;
        for (const Reading& reading : group.readings)
            numbers.append(QString::fromUtf16(reading.spoken) + QStringLiteral("\u00A0= ") +
                           valueOf(group, reading));
        words += group.name + QStringLiteral("\u00A0: ") + numbers.join(QStringLiteral(" ; ")) +
                 QStringLiteral(". ");
    }
    return words.trimmed();
}

/// Returns the top of the next line.
double Readings::paintGroup(QPainter& painter, double top, const Group& group) const {
    painter.setFont(look::interfaceFont(look::kButtonPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(QPointF(10, top + kBaseline), group.name);
    const double cell = (width() - kNameWidth - 8) / static_cast<double>(group.perLine);
    double x = kNameWidth;
    for (std::size_t i = 0; i < group.readings.size(); ++i) {
        const Reading& reading = group.readings[i];
        if (i == group.perLine) {
            x = kNameWidth;
            top += kLineHeight;
        }
        painter.setPen(QColor::fromRgb(look::kMuted));
        const common::Formula symbol(
            QString::fromUtf16(reading.symbol) + QStringLiteral("\u00A0=\u00A0"), look::kLabelPx);
        symbol.paint(painter, {x, top + kBaseline});
        painter.setPen(QColor::fromRgb(look::kInk));
        painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
        painter.drawText(QPointF(x + symbol.width(), top + kBaseline), valueOf(group, reading));
        x += cell;
    }
    return top + kLineHeight;
}

void Readings::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    double top = kEdges / 2;
    for (const Group& group : groups())
        top = paintGroup(painter, top, group);
}

} // namespace projectile
