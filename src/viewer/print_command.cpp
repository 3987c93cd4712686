#include "viewer/print_command.h"

#include "platform/printed_words.h"
#include "viewer/page_proposal.h"

namespace viewer {

using Outcome = platform::PrinterSetup::Outcome;

namespace {

QString pages(int count) {
    return count == 1 ? QStringLiteral("1 page") : QStringLiteral("%1 pages").arg(count);
}

QString sentenceOn(const PrintRun& run) {
    if (!run.hasEnded)
        return QStringLiteral("L’impression n’a pas pu être terminée\u00A0: des pages manquent.");
    if (run.printed < run.wanted)
        return QStringLiteral("L’impression a été interrompue\u00A0: %1 sur\u00A0%2.")
            .arg(pages(run.printed))
            .arg(run.wanted);
    return QStringLiteral("Le cours n’a pas pu être lu en entier\u00A0: il manque %1 sur\u00A0%2. "
                          "Vérifiez le disque ou le réseau.")
        .arg(pages(run.unread))
        .arg(run.wanted);
}

} // namespace

void PrintCommand::print() {
    auto outcome = parts_.setup.ask();
    while (outcome == Outcome::Cancelled)
        outcome = parts_.setup.ask();
    if (outcome != Outcome::Confirmed)
        return;
    if (const auto part = chosenPart())
        tell(parts_.pages.imprimepage(*part));
}

std::optional<PrintPart> PrintCommand::chosenPart() {
    PageProposal proposal(parts_.pages.pages());
    if (!proposal.hasPages()) // a range that ends before it begins prints nothing, meant so
        return std::nullopt;
    const auto choice = parts_.preview.ask(proposal);
    return choice ? std::optional(proposal.part(*choice)) : std::nullopt;
}

void PrintCommand::tell(const PrintRun& run) {
    if (run.isCut()) {
        parts_.messageBoxes.ask({QStringLiteral("Imprimer"), sentenceOn(run),
                                 platform::Message::Icon::Exclamation,
                                 platform::Message::Buttons::Ok});
        return;
    }
    if (!run.hasBegun || run.wanted == 0)
        return;
    const platform::PrintTarget target = parts_.pages.target();
    parts_.notices.tellPrinted(platform::printedWords(run.printed, target),
                               platform::showingOf(target, parts_.opener, parts_.messageBoxes));
}

} // namespace viewer
