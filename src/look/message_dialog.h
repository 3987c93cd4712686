#pragma once

#include "look/icon.h"
#include "platform/message_box.h"

#include <QDialog>

#include <optional>

namespace look {

class Button;
class SpacedLabel;

/// A message box: sign, text, and the buttons at the lower right. The first button is the main
/// action and answers to Enter; Escape and the window's close button change nothing.
class MessageDialog : public QDialog {
public:
    MessageDialog(const platform::Message& message, QWidget* parent);

    /// What was chosen; once the dialog is closed.
    platform::Answer answer() const { return answer_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addButtons(platform::Message::Buttons buttons);
    void arrange();

    Icon sign_;
    SpacedLabel* text_;
    QList<Button*> buttons_;
    platform::Answer answer_;
};

/// Asks in message boxes over the window that is active.
class DialogMessageBoxes : public platform::MessageBoxes {
public:
    platform::Answer ask(const platform::Message& message) override;
};

} // namespace look
