#include "common/formula_label.h"

#include "look/accessible_role.h"
#include "look/palette.h"

#include <QPainter>

namespace common {

FormulaLabel::FormulaLabel(const QString& formula, const QString& spoken, int pixels,
                           QWidget* parent)
    : QWidget(parent), source_(formula), pixels_(pixels), formula_(formula, pixels) {
    look::setAccessibleRole(*this, QAccessible::StaticText);
    setAccessibleName(spoken);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FormulaLabel::setFormula(const QString& formula, const QString& spoken) {
    if (formula == source_)
        return;
    source_ = formula;
    formula_ = Formula(formula, pixels_);
    setAccessibleName(spoken);
    updateGeometry();
    update();
}

QSize FormulaLabel::sizeHint() const {
    return {qCeil(formula_.width()) + 1, qCeil(formula_.ascent() + formula_.descent()) + 2};
}

void FormulaLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QColor::fromRgb(look::kInk));
    const double height = formula_.ascent() + formula_.descent();
    const double left = alignment_ == Qt::AlignRight ? width() - formula_.width() : 0;
    formula_.paint(painter, {left, (this->height() - height) / 2 + formula_.ascent()});
}

} // namespace common
