#include "reaction/equation_view.h"

#include "common/formula.h"
#include "common/qt_text.h"
#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

namespace reaction {

namespace {

constexpr int kHeight = 66;
constexpr double kFormulaPx = 18;
constexpr double kNarrowPx = 14;
constexpr double kEquationFoot = 28; ///< where the letters stand
constexpr double kMargin = 12;

} // namespace

EquationView::EquationView(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    setFixedHeight(kHeight);
    setMinimumWidth(360); // the longest in its small size
    experiment_.onChanged([this] { show(); });
    show();
}

void EquationView::show() {
    look::setAccessibleRole(*this, QAccessible::StaticText);
    setAccessibleName(common::qtText(equation(experiment_.reaction())));
    setAccessibleDescription(common::qtText(verdictOf(experiment_)));
    update();
}

void EquationView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    const QString source = common::qtText(equationFormula(experiment_.reaction()));
    common::Formula formula(source, kFormulaPx);
    if (formula.width() > width() - 2 * kMargin)
        formula = common::Formula(source, kNarrowPx);
    painter.setPen(QColor::fromRgb(look::kInk));
    formula.paint(painter, {(width() - formula.width()) / 2, kEquationFoot});
    painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
    painter.setPen(QColor::fromRgb(showsEnd(experiment_) ? look::kBlue : look::kMuted));
    painter.drawText(QRectF(kMargin, 38, width() - 2 * kMargin, 20), Qt::AlignCenter,
                     common::qtText(verdictOf(experiment_)));
}

} // namespace reaction
