#pragma once

#include "page/sheet.h"
#include "page/text_metrics.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace output {

/// The file that a link with this tag leads to, as a relative address; empty when it leads nowhere.
using LinkAddress = std::function<QString(const QString& tag)>;

/// A sheet as one SVG document that needs nothing beside it but its fonts. Text is text, each run
/// at its own place and as wide as it was measured; each picture is there once, as the file it was
/// read from. The same sheet always gives the same bytes. `scale` enlarges what the document says
/// its size is. What is further out than a million pixels is left out.
QByteArray svgDocument(const page::Sheet& sheet, const page::TextMetrics& metrics,
                       const LinkAddress& address, double scale = 1);

} // namespace output
