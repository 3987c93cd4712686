#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace platform {

/// What a voice tells, from the event loop.
struct VoiceEvents {
    std::function<void()> said; ///< what it was given last, to its end
    /// There is none that speaks French, or it cannot be heard. It says nothing from then on.
    std::function<void()> cannotSpeak;
};

/// A voice of the system that reads French texts aloud.
class Voice {
public:
    virtual ~Voice() = default;
    /// Returns at once. What it is saying stops, and is not told of.
    virtual void say(const QString& words) = 0;
    virtual void stop() = 0;
};

/// Null when there is none to be had.
using VoiceMaker = std::function<std::unique_ptr<Voice>(const VoiceEvents&)>;

} // namespace platform
