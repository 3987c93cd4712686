#include "exercises/choice_buttons.h"

#include "look/choice_sign.h"

#include <QPainter>

namespace exercises {

namespace {

constexpr int kSide = look::kChoiceSignPx + 2 * look::kChoiceSignMargin;

void prepare(QAbstractButton& button) {
    button.resize(kSide, kSide);
    button.setAttribute(Qt::WA_Hover);
    button.setFocusPolicy(Qt::TabFocus);
}

QPointF middle() {
    return {kSide / 2.0, kSide / 2.0};
}

} // namespace

OptionButton::OptionButton(QWidget* parent) : RadioButton(parent) {
    prepare(*this);
}

void OptionButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::paintOptionSign(painter, middle(), *this);
    look::paintChoiceFocus(painter, rect(), *this);
}

CheckButton::CheckButton(QWidget* parent) : QCheckBox(parent) {
    prepare(*this);
}

void CheckButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::paintCheckSign(painter, middle(), *this);
    look::paintChoiceFocus(painter, rect(), *this);
}

} // namespace exercises
