#pragma once

#include "platform/display_settings.h"

namespace platform {

/// On Windows the control panel's display settings. Elsewhere those of the desktop that is running
/// (XDG_CURRENT_DESKTOP), or any other program for this purpose that is installed.
class SystemDisplaySettings : public DisplaySettings {
public:
    bool open() override;
};

} // namespace platform
