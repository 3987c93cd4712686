#pragma once

namespace platform {

/// The system's own window for the settings of the display.
class DisplaySettings {
public:
    virtual ~DisplaySettings() = default;

    /// Opens it and returns at once. False, and nothing else, when this system has none.
    virtual bool open() = 0;
};

} // namespace platform
