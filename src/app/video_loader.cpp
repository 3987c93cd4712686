#include "app/video_loader.h"

#include "platform/module.h"
#include "platform/terminal.h"

namespace app {

std::unique_ptr<platform::Video> loadVideoDevice() {
    // Loaded once: the first call alone takes time, and complains.
    static const auto function = [] {
        auto found = platform::loadModuleFunction(ORVALENTE_VIDEO_MODULE, "orvalenteVideo");
        if (!found.address)
            platform::tellOnTerminal(QStringLiteral("les vidéos ne peuvent pas être lues : %1")
                                         .arg(QString::fromStdString(found.reason)));
        return reinterpret_cast<platform::Video* (*)()>(found.address);
    }();
    return std::unique_ptr<platform::Video>(function ? function() : nullptr);
}

} // namespace app
