#include "common/number_row.h"

#include "common/formula_label.h"
#include "look/interface_font.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <utility>

namespace common {

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

NumberRow::NumberRow(const Number& number, std::function<void(double)> set, QWidget* parent)
    : QWidget(parent), number_(number), label_(new FormulaLabel({}, {}, look::kLabelPx)),
      field_(new NumberField), slider_(new QSlider(Qt::Horizontal)) {
    const bool isAngle = text(number.unit) == QStringLiteral("°");
    field_->setRange(number.least, number.most);
    field_->setDecimals(number.decimals);
    field_->setSingleStep(number.step);
    field_->setSuffix((isAngle ? QString() : QStringLiteral("\u00A0")) + text(number.unit));
    field_->setAlignment(Qt::AlignRight);
    field_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field_->setKeyboardTracking(false);
    field_->setFixedWidth(kFieldWidth);

    slider_->setRange(0, number.positionOf(number.most));
    slider_->setPageStep(10);
    slider_->setAccessibleDescription(QStringLiteral("en %1").arg(text(number.unit)));
    setName(QStringLiteral("\\text{%1 }%2").arg(text(number.name), text(number.symbol)),
            text(number.name));

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(1);
    layout->addWidget(label_, 0, 0);
    layout->addWidget(field_, 0, 1);
    layout->addWidget(slider_, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);

    connect(field_, &QDoubleSpinBox::valueChanged, this, set);
    connect(slider_, &QSlider::valueChanged, this,
            [this, set = std::move(set)](int position) { set(number_.valueAt(position)); });
}

void NumberRow::setName(const QString& formula, const QString& spoken) {
    label_->setFormula(formula, spoken);
    field_->setAccessibleName(spoken);
    slider_->setAccessibleName(spoken);
}

void NumberRow::show(double value) {
    const QSignalBlocker field(field_);
    const QSignalBlocker slider(slider_);
    field_->setValue(value);
    slider_->setValue(number_.positionOf(value));
    slider_->update(); // its filled part, which follows a signal otherwise
}

} // namespace common
