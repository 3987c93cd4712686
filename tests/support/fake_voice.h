#pragma once

#include "platform/voice.h"

#include <QStringList>

namespace test_support {

/// Voices that note what they were given; a test has them tell what becomes of it.
struct FakeVoices {
    struct Voice : platform::Voice {
        explicit Voice(FakeVoices& all) : voices(all) {}
        void say(const QString& words) override { voices.log.append(words); }
        void stop() override { voices.log.append(QStringLiteral("stop")); }
        FakeVoices& voices;
    };

    platform::VoiceMaker maker() {
        return [this](const platform::VoiceEvents& told) {
            ++made;
            events = told;
            return installed ? std::make_unique<Voice>(*this) : nullptr;
        };
    }

    QStringList log;
    platform::VoiceEvents events;
    bool installed = true;
    int made = 0;
};

} // namespace test_support
