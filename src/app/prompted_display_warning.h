#pragma once

#include "platform/message_box.h"
#include "shell/shared_state.h"
#include "shell/start_up.h"

namespace app {

/// The warning about a screen that has become too narrow during start-up, as a message box: the
/// screen is measured again on "Réessayer", and the program ends on "Annuler".
class PromptedDisplayWarning : public shell::DisplayWarning {
public:
    explicit PromptedDisplayWarning(platform::Prompter& prompter) : prompter_(prompter) {}

    Choice showModally() override;

private:
    platform::Prompter& prompter_;
};

} // namespace app
