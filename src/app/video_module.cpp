#include "platform/mpv/mpv_video.h"

#include <QtGlobal>

/// What a program that has loaded this module calls; the device is the caller's to delete. Null
/// when there is no player to be had.
extern "C" Q_DECL_EXPORT platform::Video* orvalenteVideo() {
    return platform::makeMpvVideo().release();
}
