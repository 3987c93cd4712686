#pragma once

#include "look/radio_button.h"

#include <QCheckBox>

namespace exercises {

// Members of `Option1` and `Check1`. They show their sign only: the words beside it are drawn on
// the question. The sign is kChoiceSignMargin inside the control on every side.

class OptionButton : public look::RadioButton {
public:
    explicit OptionButton(QWidget* parent);

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;
};

class CheckButton : public QCheckBox {
public:
    explicit CheckButton(QWidget* parent);

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;
};

} // namespace exercises
