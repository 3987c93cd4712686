#include "look/check_box.h"

#include "look/choice_sign.h"

#include <QPainter>

namespace look {

CheckBox::CheckBox(const QString& caption, QWidget* parent) : QCheckBox(caption, parent) {
    prepareChoice(*this);
}

QSize CheckBox::sizeHint() const {
    return choiceSize(*this);
}

void CheckBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCheckSign(painter, {kChoiceSignPx / 2.0, height() / 2.0}, *this);
    paintChoiceCaption(painter, *this);
}

} // namespace look
