#include "common/formula_label.h"

#include "common/house.h"

#include <QPainter>

namespace common {

FormulaLabel::FormulaLabel(const QString& formula, const QString& spoken, int pixels,
                           QWidget* parent)
    : QWidget(parent), formula_(formula, pixels) {
    setAccessibleName(spoken);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize FormulaLabel::sizeHint() const {
    return {qCeil(formula_.width()) + 1, qCeil(formula_.ascent() + formula_.descent()) + 2};
}

void FormulaLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QColor::fromRgb(kInk));
    const double height = formula_.ascent() + formula_.descent();
    formula_.paint(painter, {0, (this->height() - height) / 2 + formula_.ascent()});
}

} // namespace common
