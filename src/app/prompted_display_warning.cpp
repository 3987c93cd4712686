#include "app/prompted_display_warning.h"

namespace app {

shell::DisplayWarning::Choice PromptedDisplayWarning::showModally() {
    platform::Message message;
    message.title = QStringLiteral("Orvalente");
    message.text = QStringLiteral(
        "Il n'est pas possible d'exécuter ce logiciel si la zone d'écran est inférieure à 800 x "
        "600 pixels (avec si possible 16777216 couleurs - 24 bits -).\r\nModifier ce paramètre "
        "depuis le panneau de configuration de WINDOWS.");
    message.icon = platform::Message::Icon::Exclamation;
    message.buttons = platform::Message::Buttons::RetryCancel;
    return prompter_.ask(message) == platform::Answer::Retry ? Choice::Continue : Choice::Quit;
}

} // namespace app
