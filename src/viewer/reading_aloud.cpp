#include "viewer/reading_aloud.h"

#include <utility>

namespace viewer {

ReadingAloud::ReadingAloud(platform::VoiceMaker makeVoice) : makeVoice_(std::move(makeVoice)) {}

void ReadingAloud::read(std::vector<page::SpokenPart> parts, Events events) {
    stop();
    if (parts.empty())
        return;
    // A voice may have been installed meanwhile.
    if (!voice_ || std::exchange(failed_, false))
        voice_ = makeVoice_({[this] { sayNext(); }, [this] { giveUp(); }});
    if (!voice_)
        return events.onNoVoice();
    parts_ = std::move(parts);
    events_ = std::move(events);
    sayNext();
}

bool ReadingAloud::stop() {
    if (!isReading())
        return false;
    next_ = 0;
    voice_->stop();
    return true;
}

void ReadingAloud::sayNext() {
    if (next_ == parts_.size()) {
        next_ = 0;
        return events_.onDone();
    }
    const page::SpokenPart& part = parts_[next_++];
    events_.onPart(part);
    voice_->say(part.words);
}

void ReadingAloud::giveUp() {
    failed_ = true;
    if (std::exchange(next_, 0) > 0)
        events_.onNoVoice();
}

} // namespace viewer
