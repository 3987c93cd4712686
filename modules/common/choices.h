#pragma once

#include "common/about.h"
#include "look/check_box.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <memory>

namespace common {

/// A drawing with a row of boxes below it, each of which it is told of by `setShown`. A click on
/// one leaves the keyboard where it is.
template <class Plot, class Shown, std::size_t count>
QWidget* withChoices(Plot& plot, const Choice<Shown> (&choices)[count]) {
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(&plot, 1);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(12, 2, 12, 8);
    row->setSpacing(18);
    auto shown = std::make_shared<Shown>();
    for (const Choice<Shown>& choice : choices) {
        auto* box = new look::CheckBox(QString::fromUtf16(choice.caption), widget);
        box->setChecked((*shown).*choice.shown);
        box->setFocusPolicy(Qt::TabFocus);
        QObject::connect(box, &QCheckBox::toggled, &plot, [&plot, shown, choice](bool checked) {
            (*shown).*choice.shown = checked;
            plot.setShown(*shown);
        });
        row->addWidget(box);
    }
    row->addStretch(1);
    layout->addLayout(row);
    return widget;
}

} // namespace common
