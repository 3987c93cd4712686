#pragma once

#include "projectile/experiment.h"

#include <QDoubleSpinBox>
#include <QSlider>
#include <QWidget>

namespace projectile {

/// A field for a number with its unit. Takes the decimal point for the comma, and leaves the space
/// bar to the window.
class NumberField : public QDoubleSpinBox {
public:
    using QDoubleSpinBox::QDoubleSpinBox;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// One number of the launch: its name and symbol, a field, a slider under both. A number that the
/// exercise gives cannot be changed.
class QuantityRow : public QWidget {
public:
    QuantityRow(Experiment& experiment, Parameter parameter, QWidget* parent = nullptr);

private:
    void show(double value);

    Experiment& experiment_;
    const Quantity& quantity_;
    NumberField* field_;
    QSlider* slider_;
};

} // namespace projectile
