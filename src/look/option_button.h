#pragma once

#include "look/radio_button.h"

namespace look {

/// One of the options of a dialog, with its caption, painted by hand.
class OptionButton : public RadioButton {
public:
    OptionButton(const QString& caption, QWidget* parent);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;
};

} // namespace look
