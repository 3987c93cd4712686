#pragma once

#include "platform/voice.h"

namespace platform {

/// The voice that Qt's speech library finds: on Linux that of speech-dispatcher, on Windows that of
/// the system.
std::unique_ptr<Voice> makeQtVoice(const VoiceEvents& events);

} // namespace platform
