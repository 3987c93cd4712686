#include "common/reading_painter.h"

#include "common/formula.h"
#include "common/qt_text.h"
#include "look/interface_font.h"
#include "look/palette.h"

#include <QPainter>

namespace common {

namespace {

constexpr double kLeft = 10;
constexpr double kNameWidth = 78;
constexpr double kBaseline = 18;

} // namespace

double paintReadings(QPainter& painter, double top, double width, const ReadingGroup& group) {
    const auto& [name, readings, perLine] = group;
    painter.setFont(look::interfaceFont(look::kButtonPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(QPointF(kLeft, top + kBaseline), qtText(name));
    const double cell = (width - kNameWidth - 8) / static_cast<double>(perLine);
    for (std::size_t i = 0; i < readings.size(); ++i) {
        if (i > 0 && i % perLine == 0)
            top += kReadingHeight;
        const double x = kNameWidth + static_cast<double>(i % perLine) * cell;
        if (readings[i].name.empty()) {
            painter.setPen(QColor::fromRgb(look::kInk));
            Formula(qtText(readings[i].value), look::kLabelPx).paint(painter, {x, top + kBaseline});
            continue;
        }
        painter.setPen(QColor::fromRgb(look::kMuted));
        const Formula symbol(qtText(readings[i].name) + QStringLiteral("\u00A0=\u00A0"),
                             look::kLabelPx);
        symbol.paint(painter, {x, top + kBaseline});
        painter.setPen(QColor::fromRgb(look::kInk));
        painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
        painter.drawText(QPointF(x + symbol.width(), top + kBaseline), qtText(readings[i].value));
    }
    return top + kReadingHeight;
}

} // namespace common
