#pragma once

#include "page/recording.h"

#include <QString>

namespace page {

/// The text of ReadablePage, for who needs nothing else of it.
QString readableText(const Recording& recording, SurfaceId surface);

} // namespace page
