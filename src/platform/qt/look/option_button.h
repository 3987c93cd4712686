#pragma once

#include <QRadioButton>

namespace platform::look {

/// An option button with its caption, painted by hand.
class OptionButton : public QRadioButton {
public:
    OptionButton(const QString& caption, QWidget* parent);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;
};

} // namespace platform::look
