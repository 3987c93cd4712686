#pragma once

#include "platform/video.h"

#include <QString>

namespace viewer {

/// The main window as the page's video knows it: `projo`, the marker, and what stands beside them.
class VideoView : public platform::VideoScreen {
public:
    /// Shows or hides `projo`.
    virtual void setPictureVisible(bool visible) = 0;
    /// Width of the marker in twips, 0 to PageVideo::kMarkerTwips.
    virtual void setMarkerWidth(double twips) = 0;
    /// A word on what the video does, whether it plays, and whether its last frame stands.
    virtual void setVideoStatus(const QString& words, bool playing, bool atEnd) = 0;
    virtual void pumpPendingMessages() = 0;
};

} // namespace viewer
