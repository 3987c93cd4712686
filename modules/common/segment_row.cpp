#include "common/segment_row.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QWidget>

namespace common {

QWidget* segmentRow(QButtonGroup* group) {
    QObject::connect(group, &QButtonGroup::buttonToggled, group,
                     [group](const QAbstractButton* pressed, bool down) {
                         for (QAbstractButton* button : group->buttons())
                             if (down)
                                 button->setFocusPolicy(button == pressed ? Qt::TabFocus
                                                                          : Qt::NoFocus);
                     });
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->setSpacing(4);
    for (QAbstractButton* button : group->buttons())
        layout->addWidget(button, 1);
    return widget;
}

} // namespace common
