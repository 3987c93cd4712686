#pragma once

#include "output/svg/svg_form.h"
#include "page/sheet.h"
#include "page/text_metrics.h"

#include <QByteArray>

namespace output {

/// A sheet as one SVG document that needs nothing beside it but its fonts. Text is text, each run
/// at its own place and as wide as it was measured; each picture is there once, as the file it was
/// read from. The same sheet always gives the same bytes. What is further out than a million pixels
/// is left out.
QByteArray svgDocument(const page::Sheet& sheet, const page::TextMetrics& metrics,
                       const SvgForm& form);

} // namespace output
