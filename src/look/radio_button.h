#pragma once

#include <QRadioButton>

namespace look {

/// One of the options that stand together in a widget. The Tab key stops at the chosen one, at the
/// first while none is chosen; the arrow keys lead to the others.
class RadioButton : public QRadioButton {
public:
    explicit RadioButton(QWidget* parent);
    RadioButton(const QString& caption, QWidget* parent);

private:
    void takeTabStop();
};

} // namespace look
