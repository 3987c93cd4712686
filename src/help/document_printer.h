#pragma once

#include "output/paper/qt_printer.h"

class QTextDocument;

namespace help {

/// Prints `document`, laid out in pixels of 96 to the inch, on the printer as it is set up. At the
/// foot of each sheet stand `title`, which is what queues and files call it too, and the sheet's
/// number. The document is broken anew for the paper. False when the printer refused it or the
/// file cannot be written.
bool printDocument(const output::QtPrinter& printer, QTextDocument& document, const QString& title);

} // namespace help
