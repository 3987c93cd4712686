#include "common/reading.h"

#include "common/formula.h"
#include "look/interface_font.h"
#include "look/palette.h"

#include <QPainter>

namespace common {

namespace {

constexpr double kLeft = 10;
constexpr double kNameWidth = 78;
constexpr double kBaseline = 18;

} // namespace

double paintReadings(QPainter& painter, double top, double width, const QString& group,
                     const std::vector<Reading>& readings, std::size_t perLine) {
    painter.setFont(look::interfaceFont(look::kButtonPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(QPointF(kLeft, top + kBaseline), group);
    const double cell = (width - kNameWidth - 8) / static_cast<double>(perLine);
    for (std::size_t i = 0; i < readings.size(); ++i) {
        if (i > 0 && i % perLine == 0)
            top += kReadingHeight;
        const double x = kNameWidth + static_cast<double>(i % perLine) * cell;
        painter.setPen(QColor::fromRgb(look::kMuted));
        const Formula symbol(readings[i].name + QStringLiteral("\u00A0=\u00A0"), look::kLabelPx);
        symbol.paint(painter, {x, top + kBaseline});
        painter.setPen(QColor::fromRgb(look::kInk));
        painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
        painter.drawText(QPointF(x + symbol.width(), top + kBaseline), readings[i].value);
    }
    return top + kReadingHeight;
}

} // namespace common
