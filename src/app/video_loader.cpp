#include "app/video_loader.h"

#include "app/loaded_function.h"

namespace app {

std::unique_ptr<platform::Video> loadVideoDevice() {
    static const auto make = reinterpret_cast<platform::Video* (*)()>(loadedFunction(
        ORVALENTE_VIDEO_MODULE, "orvalenteVideo", "les vidéos ne peuvent pas être lues"));
    return std::unique_ptr<platform::Video>(make ? make() : nullptr);
}

} // namespace app
