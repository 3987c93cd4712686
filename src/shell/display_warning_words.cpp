#include "shell/display_warning_words.h"

namespace shell {

namespace {

constexpr std::int16_t kAdvice = 2;

const QString kHowToChange =
    QStringLiteral("\r\nModifier ce paramètre depuis le panneau de configuration de WINDOWS.");

} // namespace

DisplayWarningWords displayWarningWords(std::int16_t mode) {
    switch (mode) {
    case kBlockingWarning:
        return {
            QStringLiteral("Il n'est pas possible d'exécuter ce logiciel si la zone d'écran est "
                           "inférieure à 800 x 600 pixels (avec si possible 16777216 couleurs - "
                           "24 bits -).") +
                kHowToChange,
            QStringLiteral("Quitter")};
    case kAdvice:
        return {
            QStringLiteral("Il est préférable d'exécuter ce logiciel avec une zone d'écran de "
                           "800 x 600 pixels (avec si possible 16777216 couleurs - 24 bits -).") +
                kHowToChange,
            QStringLiteral("Exécuter avec cette configuration")};
    default:
        return {QStringLiteral("Ce logiciel est prévu pour une zone d’écran de 800 x 600 pixels."),
                QStringLiteral("Fermer")};
    }
}

} // namespace shell
