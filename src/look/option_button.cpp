#include "look/option_button.h"

#include "look/choice_sign.h"

#include <QPainter>

namespace look {

OptionButton::OptionButton(const QString& caption, QWidget* parent) : RadioButton(caption, parent) {
    prepareChoice(*this);
}

QSize OptionButton::sizeHint() const {
    return choiceSize(*this);
}

void OptionButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintOptionSign(painter, {kChoiceSignPx / 2.0, height() / 2.0}, *this);
    paintChoiceCaption(painter, *this);
}

} // namespace look
