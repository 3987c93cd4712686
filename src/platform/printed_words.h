#pragma once

#include "platform/message_box.h"
#include "platform/pdf_opener.h"
#include "platform/printer.h"

#include <QString>

#include <functional>

namespace platform {

/// A French sentence on `pages` that were printed without a fault, 1 or more: how many, and where
/// they went. A long name of a file is shortened in its middle.
QString printedWords(int pages, const PrintTarget& target);

/// Has the file shown in which the pages are, or says that it could not be; empty where they are on
/// paper. Both references must outlive it.
std::function<void()> showingOf(const PrintTarget& target, PdfOpener& opener,
                                MessageBoxes& messageBoxes);

} // namespace platform
