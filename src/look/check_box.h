#pragma once

#include <QCheckBox>

namespace look {

/// A check box with its caption, painted by hand.
class CheckBox : public QCheckBox {
public:
    CheckBox(const QString& caption, QWidget* parent);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;
};

} // namespace look
