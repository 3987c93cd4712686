#include "common/control_panel.h"

#include "common/formula_button.h"
#include "common/number_row.h"
#include "common/plain_label.h"
#include "common/qt_text.h"
#include "common/segment_row.h"
#include "look/tool_tip.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace common {

namespace {

using Kind = Control::Kind;

const look::Button::Look kSegment = {.kind = look::Button::Kind::Segment, .icon = {}};

/// The end of the controls that stand where the one at `from` does.
std::size_t endOfPlace(const Controls& controls, std::size_t from) {
    const auto isJoined = [&](std::size_t at) {
        const Control& last = controls[at - 1];
        const bool isRow = last.kind == Kind::Button && controls[at].kind == Kind::Button &&
                           last.isAtFoot == controls[at].isAtFoot;
        return controls[at].isInPlaceOfLast || isRow;
    };
    std::size_t end = from + 1;
    while (end < controls.size() && isJoined(end))
        ++end;
    return end;
}

/// Those of a row with a formula are all set as formulas, so that they stand on one line.
look::Button* segment(const Option& option, bool isFormula) {
    auto* button = isFormula ? new FormulaButton(qtText(formulaOf(option)), qtText(option.words),
                                                 kSegment, nullptr)
                             : new look::Button(qtText(option.words), kSegment, nullptr);
    look::setToolTip(*button, qtText(option.hint));
    return button;
}

} // namespace

ControlPanel::ControlPanel(std::function<Controls()> controls, QWidget* parent)
    : QWidget(parent), controls_(std::move(controls)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    const Controls all = controls_();
    for (const Control& one : all)
        parts_.push_back(made(one));
    for (std::size_t from = 0, end = 0; from < all.size(); from = end) {
        end = endOfPlace(all, from);
        if (from > 0 && all[from].isAtFoot && !all[from - 1].isAtFoot)
            layout->addStretch(1);
        layout->addWidget(placed(all, from, end));
    }
    refresh();
}

ControlPanel::Part ControlPanel::made(const Control& control) {
    switch (control.kind) {
    case Kind::Heading:
        return {heading(qtText(control.name))};
    case Kind::Note:
        return {paragraph(qtText(control.name), {.ink = look::kMuted})};
    case Kind::Number: {
        auto* row = new NumberRow(control.number, control.change);
        return {row, [row](const Control& now) {
                    row->setName(qtText(now.formula), qtText(now.name));
                    row->show(now.value);
                }};
    }
    case Kind::List: {
        auto* list = new QComboBox;
        for (const Option& option : control.options)
            list->addItem(qtText(option.words));
        list->setAccessibleName(qtText(control.name));
        connect(list, &QComboBox::currentIndexChanged, this, control.change);
        return {list, [list](const Control& now) {
                    const QSignalBlocker blocker(list);
                    list->setCurrentIndex(static_cast<int>(now.value));
                }};
    }
    case Kind::Button: {
        auto* button = new look::Button(qtText(control.name), {}, nullptr);
        connect(button, &QPushButton::clicked, this, [press = control.change] { press(0); });
        return {button,
                [button](const Control& now) { look::setToolTip(*button, qtText(now.hint)); }};
    }
    case Kind::Segments:
        break;
    }
    return segments(control);
}

ControlPanel::Part ControlPanel::segments(const Control& control) {
    auto* group = new QButtonGroup(this);
    const bool isFormula =
        std::any_of(control.options.begin(), control.options.end(),
                    [](const Option& option) { return !option.formula.empty(); });
    for (std::size_t i = 0; i < control.options.size(); ++i)
        group->addButton(segment(control.options[i], isFormula), static_cast<int>(i));
    connect(group, &QButtonGroup::idClicked, this, [this, choose = control.change](int which) {
        choose(which);
        refresh(); // what was pressed need not have been taken
    });
    return {segmentRow(group, qtText(control.name)), [group](const Control& now) {
                // A group that allows none has no way to say so but for the moment in which it is
                // told.
                group->setExclusive(false);
                for (QAbstractButton* button : group->buttons())
                    button->setChecked(group->id(button) == static_cast<int>(now.value));
                group->setExclusive(true);
            }};
}

QWidget* ControlPanel::placed(const Controls& controls, std::size_t from, std::size_t end) {
    if (end - from == 1)
        return parts_[from].widget;
    if (controls[from + 1].isInPlaceOfLast) {
        auto* place = new QStackedWidget;
        for (std::size_t i = from; i < end; ++i) {
            place->addWidget(parts_[i].widget);
            parts_[i].place = place;
        }
        return place;
    }
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    for (std::size_t i = from; i < end; ++i)
        layout->addWidget(parts_[i].widget, i == from ? 1 : 0);
    return row;
}

void ControlPanel::refresh() {
    const Controls now = controls_();
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const auto& [widget, show, place] = parts_[i];
        show(now[i]);
        widget->setEnabled(now[i].isEnabled);
        if (place == nullptr)
            widget->setVisible(now[i].isShown);
        else if (now[i].isShown)
            place->setCurrentWidget(widget);
    }
}

} // namespace common
