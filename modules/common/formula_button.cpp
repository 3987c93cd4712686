#include "common/formula_button.h"

#include "look/pixels.h"

namespace common {

FormulaButton::FormulaButton(const QString& formula, const QString& spoken, const Look& look,
                             QWidget* parent)
    : Button({}, look, parent), formula_(formula, font().pixelSize()) {
    setAccessibleName(spoken);
}

void FormulaButton::paintCaption(QPainter& painter, QPointF baseline) const {
    baseline.setY(look::snapped(painter, baseline.y()));
    formula_.paint(painter, baseline);
}

} // namespace common
