#pragma once

#include <QString>

namespace platform {

/// What a message box says and offers.
struct Message {
    enum class Icon { Critical, Question, Exclamation, Information };
    enum class Buttons { Ok, OkCancel, YesNo, RetryCancel };

    QString title;
    /// Lines are separated by CR LF.
    QString text;
    Icon icon = Icon::Information;
    Buttons buttons = Buttons::Ok;

    bool operator==(const Message&) const = default;
};

enum class Answer { Ok, Cancel, Yes, No, Retry };

/// Puts a question or a message to the person in front of the screen.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// Shows `message` modally and returns the button chosen, always one of those offered. A box
    /// closed without a choice answers with the button that changes nothing: Cancel, No, or Ok
    /// where it is the only one.
    virtual Answer ask(const Message& message) = 0;
};

} // namespace platform
