#include "viewer/print_command.h"

namespace viewer {

using Outcome = platform::PrinterSetup::Outcome;

namespace {

QString sentenceOn(const PrintRun& run) {
    if (!run.hasEnded)
        return QStringLiteral("L’impression n’a pas pu être terminée\u00A0: des pages manquent.");
    return QStringLiteral("L’impression a été interrompue\u00A0: %1 sur\u00A0%2.")
        .arg(run.printed == 1 ? QStringLiteral("1 page")
                              : QStringLiteral("%1 pages").arg(run.printed))
        .arg(run.wanted);
}

} // namespace

void PrintCommand::print() {
    auto outcome = setup_.ask();
    while (outcome == Outcome::Cancelled)
        outcome = setup_.ask();
    if (outcome != Outcome::Confirmed)
        return;
    const PrintRun run = pages_.imprimepage();
    if (run.isCut())
        messageBoxes_.ask({QStringLiteral("Imprimer"), sentenceOn(run),
                           platform::Message::Icon::Exclamation, platform::Message::Buttons::Ok});
}

} // namespace viewer
