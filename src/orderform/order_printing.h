#pragma once

#include "orderform/order.h"
#include "page/text_metrics.h"
#include "platform/printer.h"

namespace orderform {

/// What printing needs; all must outlive its user.
struct PrintingParts {
    platform::PrinterSetup& setup;
    platform::Printer& printer;
    const page::TextMetrics& metrics;
};

enum class PrintOutcome {
    Printed,
    Cancelled, ///< in the printer's dialog, which leads back to the form
    Failed,    ///< Printer::error() says why
    Gone,      ///< the program ends
};

/// Asks for the printer's set-up once and prints the mail-order form of a tidied order without
/// faults. The paper is all that it leaves behind.
PrintOutcome printOrder(const Order& order, const PrintingParts& parts);

} // namespace orderform
