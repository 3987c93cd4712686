#pragma once

#include "platform/message_box.h"
#include "platform/qt/look/icon.h"

#include <QDialog>

#include <optional>

namespace platform::look {

class Button;
class SpacedLabel;

/// A message box: sign, text, and the buttons at the lower right. The first button is the main
/// action and answers to Enter; Escape and the window's close button change nothing.
class MessageDialog : public QDialog {
public:
    MessageDialog(const Message& message, QWidget* parent);

    /// What was chosen; once the dialog is closed.
    Answer answer() const { return answer_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addButtons(Message::Buttons buttons);
    void arrange();

    Icon sign_;
    SpacedLabel* text_;
    QList<Button*> buttons_;
    Answer answer_;
};

/// Asks in message boxes over the window that is active.
class DialogPrompter : public Prompter {
public:
    Answer ask(const Message& message) override;
};

} // namespace platform::look
