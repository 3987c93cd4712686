#pragma once

#include "page/recording.h"

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

namespace page {

/// The colour that stands in for one that a mask fill lies over: multipliedInk() or maskedInk().
using InkUnderMask = QRgb (*)(QRgb ink, QRgb cover);

/// Pictures for devices that know no AND: those that a mask fill lies over, as the same with their
/// own pixels changed where it does. By the place of their operation; pictures that no fill touches
/// are not among them. They have as many pixels as are printed (printed_picture.h), or as many as
/// the screen shows where those are more, so that fills end where they do there. What shines
/// through a picture is left to the device.
std::map<std::size_t, std::shared_ptr<const Picture>>
maskedPictures(const std::vector<DrawnOperation>& operations, InkUnderMask join);

} // namespace page
