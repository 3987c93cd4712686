#pragma once

namespace platform {

/// The system's beep.
class Beeper {
public:
    virtual ~Beeper() = default;

    virtual void beep() = 0;
};

} // namespace platform
