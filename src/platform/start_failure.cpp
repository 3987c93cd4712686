#include "platform/start_failure.h"

namespace platform {

QString whyNotStarted(StartFailure failure) {
    switch (failure) {
    case StartFailure::Missing:
        return QStringLiteral("est introuvable dans le dossier du cours.");
    case StartFailure::NeedsWine:
        return QStringLiteral("est un programme Windows\u00A0: il faut installer Wine pour le "
                              "lancer.");
    case StartFailure::SixteenBit:
        return QStringLiteral("est un ancien programme 16\u00A0bits, que ce système ne sait pas "
                              "lancer.");
    case StartFailure::LeadsOut:
        return QStringLiteral("mène hors du dossier du cours\u00A0: il n’est pas lancé.");
    case StartFailure::NotAProgram:
        return QStringLiteral("n’est pas un programme que ce système sait lancer.");
    case StartFailure::Refused:
        break;
    }
    return QStringLiteral("n’a pas pu être lancé\u00A0: le système l’a refusé.");
}

} // namespace platform
