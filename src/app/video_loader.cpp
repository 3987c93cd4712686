#include "app/video_loader.h"

#include "platform/module.h"

#include <cstdio>

namespace app {

std::unique_ptr<platform::Video> loadVideoDevice() {
    // Loaded once: the first call alone takes time, and complains.
    static const auto function = [] {
        auto found = platform::loadModuleFunction(ORVALENTE_VIDEO_MODULE, "orvalenteVideo");
        if (!found.address)
            std::fprintf(stderr, "orvalente : les vidéos ne peuvent pas être lues : %s.\n",
                         found.reason.c_str());
        return reinterpret_cast<platform::Video* (*)()>(found.address);
    }();
    return std::unique_ptr<platform::Video>(function ? function() : nullptr);
}

} // namespace app
