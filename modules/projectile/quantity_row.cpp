#include "projectile/quantity_row.h"

#include "common/formula_label.h"
#include "look/interface_font.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace projectile {

namespace {

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
      field_(new NumberField), slider_(new QSlider(Qt::Horizontal)) {
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

    slider_->setRange(0, positionOf(quantity_, quantity_.most));
    slider_->setPageStep(10);
    slider_->setAccessibleName(name);
    slider_->setAccessibleDescription(QStringLiteral("en %1").arg(text(quantity_.unit)));

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(1);
    layout->addWidget(label, 0, 0);
    layout->addWidget(field_, 0, 1);
    layout->addWidget(slider_, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);

    connect(field_, &QDoubleSpinBox::valueChanged, this,
            [this, parameter](double value) { experiment_.set(parameter, value); });
    connect(slider_, &QSlider::valueChanged, this, [this, parameter](int position) {
        experiment_.set(parameter, valueAt(quantity_, position));
    });
    experiment_.onChanged([this] { show(experiment_.launch().*quantity_.value); });
    show(experiment_.launch().*quantity_.value);
    setEnabled(!experiment_.isLocked(parameter));
}

void QuantityRow::show(double value) {
    const QSignalBlocker field(field_);
    const QSignalBlocker slider(slider_);
    field_->setValue(value);
    slider_->setValue(positionOf(quantity_, value));
    slider_->update(); // its filled part, which follows a signal otherwise
}

} // namespace projectile
