#pragma once

class QWidget;

namespace look {

/// Gives a window that is put together from the toolkit's own controls the colours, the face and
/// the forms of all windows. To be called once the controls are there.
void dress(QWidget& window);

/// The same colours and face for all windows of a program, with the toolkit's own style, so that
/// they are the same on every desktop, dark ones included. The application object must be there.
void dressApplication();

} // namespace look
