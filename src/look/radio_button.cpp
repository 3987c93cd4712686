#include "look/radio_button.h"

namespace look {

RadioButton::RadioButton(QWidget* parent) : RadioButton(QString(), parent) {}

RadioButton::RadioButton(const QString& caption, QWidget* parent) : QRadioButton(caption, parent) {
    connect(this, &QAbstractButton::toggled, this, [this](bool chosen) {
        if (chosen)
            takeTabStop();
    });
}

/// The toolkit does this only once one of the options has the keyboard.
void RadioButton::takeTabStop() {
    if (!parentWidget())
        return;
    for (auto* option :
         parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (option->group() != group())
            continue;
        const int others = option->focusPolicy() & ~Qt::TabFocus;
        option->setFocusPolicy(
            static_cast<Qt::FocusPolicy>(option == this ? others | Qt::TabFocus : others));
    }
}

} // namespace look
