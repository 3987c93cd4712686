#include "common/law_page.h"

#include "common/formula.h"
#include "common/qt_text.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/scroll_bar.h"

#include <QPainter>
#include <QScrollArea>

#include <algorithm>
#include <utility>

namespace common {

namespace {

constexpr double kMargin = 16;
constexpr double kFormulaLeft = 190;
constexpr double kFormulaPx = 16;
constexpr double kGapBelow = 11;
constexpr double kHeadingHeight = 30;

} // namespace

LawPage::LawPage(std::function<std::vector<Law>()> laws, QWidget* parent)
    : QWidget(parent), find_(std::move(laws)) {
    setAccessibleName(QStringLiteral("Formules"));
    refresh();
}

void LawPage::refresh() {
    laws_ = find_();
    double height = kMargin;
    double widest = 0;
    for (const Law& law : laws_) {
        const Formula formula(qtText(law.formula), kFormulaPx);
        widest = std::max(widest, formula.width());
        height +=
            law.formula.empty() ? kHeadingHeight : formula.ascent() + formula.descent() + kGapBelow;
    }
    setMinimumHeight(qCeil(height + kMargin));
    setMinimumWidth(qCeil(kFormulaLeft + widest + kMargin)); // narrower, one scrolls
    update();
}

void LawPage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kPaper));
    double y = kMargin;
    for (const Law& law : laws_) {
        if (law.formula.empty()) {
            painter.setPen(QColor::fromRgb(look::kBlue));
            painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
            painter.drawText(QPointF(kMargin, y + 15), qtText(law.words));
            y += kHeadingHeight;
            continue;
        }
        const Formula formula(qtText(law.formula), kFormulaPx);
        const double baseline = y + formula.ascent();
        painter.setPen(QColor::fromRgb(look::kMuted));
        painter.setFont(look::interfaceFont(look::kLabelPx));
        painter.drawText(QPointF(kMargin, baseline), qtText(law.words));
        painter.setPen(QColor::fromRgb(look::kInk));
        formula.paint(painter, {kFormulaLeft, baseline});
        y = baseline + formula.descent() + kGapBelow;
    }
}

QScrollArea* scrolled(QWidget* page) {
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setVerticalScrollBar(new look::ScrollBar(area, look::ScrollBar::Top::Minimum));
    return area;
}

} // namespace common
