#pragma once

#include "common/measured_slider.h"
#include "common/number.h"

#include <QDoubleSpinBox>
#include <QWidget>

#include <functional>

namespace common {

class FormulaLabel;

/// A field for a number with its unit. Takes the decimal point for the comma, and leaves the space
/// bar to the window.
class NumberField : public QDoubleSpinBox {
public:
    using QDoubleSpinBox::QDoubleSpinBox;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// One number of a simulation: its name and symbol, a field, a slider under both.
class NumberRow : public QWidget {
public:
    /// `set` is called with what somebody chose; it need not be within the number's ends to the
    /// last digit.
    NumberRow(const Number& number, std::function<void(double)> set, QWidget* parent = nullptr);

    /// Shows a value without a call of `set`.
    void show(double value);

    /// What the number is called, which it has to be told at first.
    void setName(const QString& formula, const QString& spoken);

private:
    Number number_;
    FormulaLabel* label_;
    NumberField* field_;
    MeasuredSlider* slider_;
};

} // namespace common
