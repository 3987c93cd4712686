#include "projectile/quantity_row.h"

#include "common/formula_label.h"
#include "look/interface_font.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <cmath>

namespace projectile {

namespace {

/// Of a slider that gives each factor of ten the same room.
constexpr int kLogarithmicPositions = 200;

constexpr int kFieldWidth = 104;

QString text(const char16_t* utf16) {
    return QString::fromUtf16(utf16);
}

} // namespace

void NumberField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        event->ignore();
    } else if (event->text() == QStringLiteral(".")) {
        QKeyEvent comma(QEvent::KeyPress, Qt::Key_Comma, event->modifiers(), QStringLiteral(","));
        QDoubleSpinBox::keyPressEvent(&comma);
    } else {
        QDoubleSpinBox::keyPressEvent(event);
    }
}

QuantityRow::QuantityRow(Experiment& experiment, Parameter parameter, QWidget* parent)
    : QWidget(parent), experiment_(experiment), quantity_(quantity(parameter)),
      field_(new NumberField),
      slider_(new common::MeasuredSlider({[this](int position) { return valueAt(position); },
                                          [this](double value) { return positionOf(value); },
                                          text(quantity_.unit), quantity_.decimals})) {
    const QString name = text(quantity_.name);
    auto* label = new common::FormulaLabel(
        QStringLiteral("\\text{%1 }%2").arg(name, text(quantity_.symbol)), name, look::kLabelPx);

    const bool isAngle = parameter == Parameter::Angle;
    field_->setRange(quantity_.least, quantity_.most);
    field_->setDecimals(quantity_.decimals);
    field_->setSingleStep(quantity_.step);
    field_->setSuffix((isAngle ? QString() : QStringLiteral("\u00A0")) + text(quantity_.unit));
    field_->setAlignment(Qt::AlignRight);
    field_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field_->setKeyboardTracking(false);
    field_->setFixedWidth(kFieldWidth);
    field_->setAccessibleName(name);

    slider_->setRange(0, positionOf(quantity_.most));
    slider_->setPageStep(10);
    slider_->setAccessibleName(name);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(1);
    layout->addWidget(label, 0, 0);
    layout->addWidget(field_, 0, 1);
    layout->addWidget(slider_, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);

    connect(field_, &QDoubleSpinBox::valueChanged, this,
            [this, parameter](double value) { experiment_.set(parameter, value); });
    connect(slider_, &QSlider::valueChanged, this,
            [this, parameter](int position) { experiment_.set(parameter, valueAt(position)); });
    experiment_.onChanged([this] { show(experiment_.launch().*quantity_.value); });
    show(experiment_.launch().*quantity_.value);
    setEnabled(!experiment_.isLocked(parameter));
}

void QuantityRow::show(double value) {
    const QSignalBlocker field(field_);
    const QSignalBlocker slider(slider_);
    field_->setValue(value);
    slider_->setValue(positionOf(value));
    slider_->update(); // its filled part, which follows a signal otherwise
}

int QuantityRow::positionOf(double value) const {
    if (!quantity_.logarithmic)
        return static_cast<int>(std::lround((value - quantity_.least) / quantity_.step));
    const double share =
        std::log(value / quantity_.least) / std::log(quantity_.most / quantity_.least);
    return static_cast<int>(std::lround(share * kLogarithmicPositions));
}

double QuantityRow::valueAt(int position) const {
    if (!quantity_.logarithmic)
        return std::min(quantity_.most, quantity_.least + position * quantity_.step);
    const double share = static_cast<double>(position) / kLogarithmicPositions;
    const double value = quantity_.least * std::pow(quantity_.most / quantity_.least, share);
    // Two significant digits: 0,63 kg is a better mass than 0,6309 kg.
    const double power = std::pow(10, std::floor(std::log10(value)) - 1);
    return std::min(quantity_.most, std::round(value / power) * power);
}

} // namespace projectile
