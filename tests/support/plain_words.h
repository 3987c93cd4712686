#pragma once

#include <QString>

class QWidget;

namespace test_support {

/// What a hostile course writes wherever it may write words: markup that opens a file, a mnemonic,
/// an entity, the place of a window's mark, an argument of a text to be filled in.
inline const QString kHostileWords = QStringLiteral("<img src='/dev/null'><b>a</b> &x &lt; [*] %1");

/// Looks at all that a window and the controls in it show: no words may be markup or hold a
/// mnemonic of their own. Each tooltip is shown on the way, and must come out to the letter, in the
/// face of the interface. Gives the number of places where kHostileWords was met.
int expectPlainWords(QWidget& window);

} // namespace test_support
