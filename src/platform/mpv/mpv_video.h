#pragma once

#include "platform/video.h"

#include <memory>

namespace platform {

/// A video device on libmpv; null when there is no player to be had. From here on the process
/// writes and reads numbers the C way (LC_NUMERIC), which libmpv asks for.
///
/// With ORVALENTE_NO_SOUND set in the environment it stays silent and looks for no sound device.
std::unique_ptr<Video> makeMpvVideo();

} // namespace platform
