#include "orderform/order_printing.h"

#include "orderform/order_sheet.h"

namespace orderform {

PrintOutcome printOrder(const Order& order, const PrintingParts& parts) {
    using Asked = platform::PrinterSetup::Outcome;
    switch (parts.setup.ask()) {
    case Asked::Cancelled:
    case Asked::Busy:
        return PrintOutcome::Cancelled;
    case Asked::Gone:
        return PrintOutcome::Gone;
    case Asked::Confirmed:
        break;
    }
    platform::Printer& printer = parts.printer;
    const bool printed = printer.begin({QStringLiteral("Orvalente - Bon de commande")}) &&
                         printer.print(orderSheet(order, printer.paper(), parts.metrics));
    return printer.end() && printed ? PrintOutcome::Printed : PrintOutcome::Failed;
}

} // namespace orderform
