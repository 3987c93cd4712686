#include "platform/qt/qt_voice.h"

#include <QtGlobal>

/// What a program that has loaded this module calls; the voice is the caller's to delete.
extern "C" Q_DECL_EXPORT platform::Voice* orvalenteVoice(const platform::VoiceEvents& events) {
    return platform::makeQtVoice(events).release();
}
