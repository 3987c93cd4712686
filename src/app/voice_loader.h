#pragma once

#include "platform/voice.h"

namespace app {

/// A voice of the module that has the speech library, loaded now if it was not before. Null, with a
/// line on standard error the first time, when it is not to be had.
std::unique_ptr<platform::Voice> loadVoice(const platform::VoiceEvents& events);

} // namespace app
