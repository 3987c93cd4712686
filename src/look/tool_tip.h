#pragma once

#include <QPoint>
#include <QString>

class QWidget;

namespace look {

/// Gives a control a tooltip; an empty one takes it away. This is the only way to set one: many
/// tooltips hold words of a course, and shown by the toolkit itself, words with signs like "<img"
/// would be read as markup that opens files. The control's own toolTip() stays the plain words,
/// which is what a screen reader gets. What is shown names the key that does the same too: `keys`,
/// as a person reads it ("Ctrl + L"), or else the mnemonic of a button.
void setToolTip(QWidget& control, const QString& words, const QString& keys = {});

/// Shows words as tooltips are shown: letter by letter, in the face of the interface, long ones in
/// several lines and cut where nobody would read on; below the control or else above it, so that
/// nothing of it is covered, or beside the pointer, which is at `place` of the screen, where the
/// control is tall. Without words it hides what is shown.
void showToolTip(QPoint place, const QString& words, QWidget& control);

} // namespace look
