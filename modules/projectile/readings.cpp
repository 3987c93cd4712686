#include "projectile/readings.h"

#include "common/qt_text.h"
#include "common/reading_painter.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "projectile/listing.h"

#include <QPainter>

namespace projectile {

namespace {

constexpr int kEdges = 6; ///< above the first line and below the last

/// Narrower, the longest numbers would touch: "v_y = −98,00 m/s".
constexpr int kLeastForTwoLines = 600;

} // namespace

Readings::Readings(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    look::setAccessibleRole(*this, QAccessible::StaticText);
    setFixedHeight(2 * common::kReadingHeight + kEdges);
    setAccessibleName(QStringLiteral("Valeurs à l’instant affiché et pour le vol entier"));
    experiment_.onChanged([this] { update(); });
    experiment_.onMoved([this] { update(); });
}

void Readings::resizeEvent(QResizeEvent*) {
    setFixedHeight((width() < kLeastForTwoLines ? 4 : 2) * common::kReadingHeight + kEdges);
}

QString Readings::toldInWords() const {
    const auto words = [](const common::ReadingGroup& group) {
        return common::qtText(common::readingsInWords(group));
    };
    const QString moment = words(readingsNow(experiment_));
    return experiment_.hidesResults() ? moment
                                      : moment + u' ' + words(readingsOfFlight(experiment_));
}

void Readings::paintEvent(QPaintEvent*) {
    common::ReadingGroup now = readingsNow(experiment_);
    common::ReadingGroup flight = readingsOfFlight(experiment_);
    if (width() < kLeastForTwoLines) {
        now.perLine = 3;
        flight.perLine = 2;
    }
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    const double next = common::paintReadings(painter, kEdges / 2, width(), now);
    common::paintReadings(painter, next, width(), flight);
}

} // namespace projectile
