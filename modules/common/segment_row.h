#pragma once

class QButtonGroup;
class QWidget;

namespace common {

/// Buttons of which one is pressed, in a row. The Tab key stops at the pressed one, as the arrow
/// keys lead to the others.
QWidget* segmentRow(QButtonGroup* group);

} // namespace common
