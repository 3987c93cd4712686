#include "viewer/print_command.h"

namespace viewer {

using Outcome = platform::PrinterSetup::Outcome;

void PrintCommand::print() {
    auto outcome = setup_.ask();
    while (outcome == Outcome::Cancelled)
        outcome = setup_.ask();
    if (outcome == Outcome::Confirmed)
        pages_.imprimepage();
}

} // namespace viewer
