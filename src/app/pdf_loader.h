#pragma once

#include "output/paper/qt_printer.h"

namespace app {

/// What writes a job into a PDF file, from a module that the first such job loads: its libraries
/// would make the start of the program longer. Null, with a word on standard error, when the module
/// is not there.
std::unique_ptr<platform::Printer> loadPdfPrinter(const QString& path, const page::FontBook& fonts,
                                                  const platform::Paper& paper);

} // namespace app
