#pragma once

#include "page/recording.h"

namespace page {

/// What a picture is called for who does not see it: its description, otherwise "Image" and the
/// name of the file in words.
QString pictureTitle(const PictureOperation& picture);

} // namespace page
