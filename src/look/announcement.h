#pragma once

class QString;
class QWidget;

namespace look {

/// Has screen readers say something now, wherever the keyboard is: that a page came, whether an
/// answer was right. What a turn of the event loop has to say in a window is said together. Nothing
/// shows; where nobody listens, or the window is not on the screen, nothing happens.
void announce(const QWidget& within, const QString& words);

} // namespace look
