#pragma once

#include "look/icon.h"
#include "platform/display_settings.h"
#include "shell/start_up.h"

#include <QDialog>

namespace look {
class Button;
class SpacedLabel;
} // namespace look

namespace shell {

/// `alerte`: warns about the screen and leads to the display settings.
class Alerte : public QDialog {
public:
    /// `mode` is SharedState::DisplayWarningMode. `settings` must outlive the window.
    Alerte(std::int16_t mode, platform::DisplaySettings& settings, QWidget* parent);

    /// Shows the window until it is answered. Quit comes from the button of that name only, which
    /// the blocking warning has, and from the program's ending meanwhile. The close button and
    /// Escape continue: in front of the blocking warning the screen is then measured again, which
    /// loses nothing, and the button "Quitter" remains the way out.
    DisplayWarning::Choice run();

    void done(int result) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Form_Load();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void arrange();

    std::int16_t mode_;
    platform::DisplaySettings& settings_;
    DisplayWarning::Choice choice_ = DisplayWarning::Choice::Quit;

    look::Icon picture_;
    look::SpacedLabel* Label1_;
    look::SpacedLabel* notice_; ///< why no settings have opened
    look::Button* Command1_;
    look::Button* Command2_;
    look::Button* Command3_;
};

/// Shows `alerte` as often as start-up asks for it.
class AlerteOpener : public DisplayWarning {
public:
    AlerteOpener(const SharedState& state, platform::DisplaySettings& settings)
        : state_(state), settings_(settings) {}

    Choice showModally() override;

private:
    const SharedState& state_;
    platform::DisplaySettings& settings_;
};

} // namespace shell
