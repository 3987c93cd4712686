#include "common/number_row.h"

#include "common/formula_label.h"
#include "common/french_number.h"
#include "common/qt_text.h"
#include "look/interface_font.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <utility>

namespace common {

namespace {

constexpr int kFieldWidth = 104;
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
      field_(new NumberField),
      slider_(new MeasuredSlider({[this](int position) { return number_.valueAt(position); },
                                  [this](double value) { return number_.positionOf(value); },
                                  qtText(number.unit), number.decimals})) {
    field_->setRange(number.least, number.most);
    field_->setDecimals(number.decimals);
    field_->setSingleStep(number.step);
    field_->setSuffix(qtText(unitBehind(number.unit)));
    field_->setAlignment(Qt::AlignRight);
    field_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field_->setKeyboardTracking(false);
    field_->setFixedWidth(kFieldWidth);

    slider_->setRange(0, number.positionOf(number.most));
    slider_->setPageStep(10);

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
    if (spoken == field_->accessibleName())
        return label_->setFormula(formula, spoken); // nothing to say anew
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
