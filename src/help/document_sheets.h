#pragma once

#include "page/sheet.h"
#include "page/text_metrics.h"
#include "platform/printer.h"

#include <QString>

#include <vector>

class QTextDocument;

namespace help {

/// The sheets of paper that a document takes, which is laid out in pixels of 96 to the inch and
/// broken anew for the paper; no heading stands alone at the foot of one. Below each stand `title`
/// and the sheet's number among them. Links have their addresses for tags.
std::vector<page::Sheet> documentSheets(QTextDocument& document, const QString& title,
                                        const platform::Paper& paper,
                                        const page::TextMetrics& metrics);

} // namespace help
