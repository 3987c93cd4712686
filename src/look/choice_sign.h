#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

class QPainter;
class QAbstractButton;

namespace look {

/// Side of a check box and diameter of an option button, in logical pixels.
inline constexpr int kChoiceSignPx = 13;
/// What a sign without a caption has on every side of that: for the frame that shows the keyboard,
/// and so that it can be hit with a finger or a trembling hand (25 pixels in all).
inline constexpr int kChoiceSignMargin = 6;

/// Paints the circle of an option button, or the box of a check box, with its middle at `centre`,
/// as the state of the button asks for.
void paintOptionSign(QPainter& painter, QPointF centre, const QAbstractButton& button);
void paintCheckSign(QPainter& painter, QPointF centre, const QAbstractButton& button);

/// Paints the frame that shows that the control has the keyboard, when it has, inside `place`.
void paintChoiceFocus(QPainter& painter, const QRectF& place, const QAbstractButton& button);

/// A choice whose caption stands right of its sign, at the left edge: face and name, size, caption.
void prepareChoice(QAbstractButton& button);
QSize choiceSize(const QAbstractButton& button);
void paintChoiceCaption(QPainter& painter, const QAbstractButton& button);

} // namespace look
