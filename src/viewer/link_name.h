#pragma once

#include "page/recording.h"

#include <QString>

namespace viewer {

/// What a screen reader calls a link: its caption on one line, in Unicode also where the page wrote
/// signs; the tooltip of a picture, or what the picture leads to when it has none.
QString linkName(const page::LinkOperation& link);

} // namespace viewer
