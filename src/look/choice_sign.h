#pragma once

#include <QPointF>
#include <QSize>

class QPainter;
class QAbstractButton;

namespace look {

/// Side of a check box and diameter of an option button, in logical pixels.
inline constexpr int kChoiceSignPx = 13;
/// What the sign needs on every side of that for the line that shows the keyboard.
inline constexpr int kChoiceSignMargin = 1;

/// Paints the circle of an option button, or the box of a check box, with its middle at `centre`,
/// as the state of the button asks for.
void paintOptionSign(QPainter& painter, QPointF centre, const QAbstractButton& button);
void paintCheckSign(QPainter& painter, QPointF centre, const QAbstractButton& button);

/// A choice whose caption stands right of its sign, at the left edge: face and name, size, caption.
void prepareChoice(QAbstractButton& button);
QSize choiceSize(const QAbstractButton& button);
void paintChoiceCaption(QPainter& painter, const QAbstractButton& button);

} // namespace look
