#pragma once

#include <QString>

class QButtonGroup;
class QWidget;

namespace common {

/// Buttons of which one is pressed, in a row, and what they choose, for who does not see the row.
/// The Tab key stops at the pressed one, as the arrow keys lead to the others.
QWidget* segmentRow(QButtonGroup* group, const QString& name);

} // namespace common
