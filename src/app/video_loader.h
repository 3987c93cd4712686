#pragma once

#include "platform/video.h"

#include <memory>

namespace app {

/// A video device of the module that has the player, loaded now if it was not before. Null, with a
/// line on standard error the first time, when it is not to be had.
std::unique_ptr<platform::Video> loadVideoDevice();

} // namespace app
