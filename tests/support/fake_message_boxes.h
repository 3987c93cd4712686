#pragma once

#include "platform/message_box.h"

#include <gtest/gtest.h>

#include <deque>
#include <vector>

namespace test_support {

/// The person in front of the screen: gives the queued `answers` in turn and keeps what was asked.
/// A question that no answer is queued for fails the test; a mere message needs none.
class FakeMessageBoxes : public platform::MessageBoxes {
public:
    platform::Answer ask(const platform::Message& message) override {
        messages.push_back(message);
        if (!answers.empty()) {
            const platform::Answer answer = answers.front();
            answers.pop_front();
            return answer;
        }
        if (message.buttons == platform::Message::Buttons::Ok)
            return platform::Answer::Ok;
        ADD_FAILURE() << "unexpected question: " << qPrintable(message.text);
        return message.buttons == platform::Message::Buttons::YesNo ? platform::Answer::No
                                                                    : platform::Answer::Cancel;
    }

    std::deque<platform::Answer> answers;
    std::vector<platform::Message> messages;
};

} // namespace test_support
