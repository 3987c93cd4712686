#pragma once

class QWidget;

namespace look {

/// Gives a dialog that is put together from the toolkit's own controls the colours, the face and
/// the forms of all windows. To be called once the controls are there.
void dress(QWidget& dialog);

} // namespace look
