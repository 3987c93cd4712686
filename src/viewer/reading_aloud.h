#pragma once

#include "page/spoken_page.h"
#include "platform/voice.h"

#include <functional>
#include <memory>
#include <vector>

namespace viewer {

/// Has the parts of a page said one after the other. The voice is made when something is first
/// read: who never has anything read does without.
class ReadingAloud {
public:
    explicit ReadingAloud(platform::VoiceMaker makeVoice);

    /// Who had something read is told of it; none of them after stop().
    struct Events {
        std::function<void(const page::SpokenPart&)> onPart; ///< this one begins
        std::function<void()> onDone;                        ///< all has been said
        std::function<void()> onNoVoice;                     ///< nothing can be said here
    };
    /// What is being read stops. Nothing is told, and nothing read, where there are no parts.
    void read(std::vector<page::SpokenPart> parts, Events events);

    bool isReading() const { return next_ > 0; }

    /// Whether anything was being read.
    bool stop();

private:
    void sayNext();
    void giveUp();

    platform::VoiceMaker makeVoice_;
    std::unique_ptr<platform::Voice> voice_;
    bool failed_ = false; ///< the voice is none: another is looked for the next time
    std::vector<page::SpokenPart> parts_;
    std::size_t next_ = 0; ///< of the parts, behind the one being said; 0 while none is
    Events events_;
};

} // namespace viewer
