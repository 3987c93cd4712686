#include "app/voice_loader.h"

#include "app/loaded_function.h"

namespace app {

std::unique_ptr<platform::Voice> loadVoice(const platform::VoiceEvents& events) {
    using Make = platform::Voice* (*)(const platform::VoiceEvents&);
    static const auto make =
        reinterpret_cast<Make>(loadedFunction(ORVALENTE_VOICE_MODULE, "orvalenteVoice",
                                              "les pages ne peuvent pas être lues à voix haute"));
    return std::unique_ptr<platform::Voice>(make ? make(events) : nullptr);
}

} // namespace app
