#pragma once

#include "platform/printer.h"
#include "viewer/neighbours.h"
#include "viewer/page_printer.h"

namespace viewer {

/// What the print button does.
class PrintCommand : public PagePrinting {
public:
    PrintCommand(platform::PrinterSetup& setup, PagePrinter& pages)
        : setup_(setup), pages_(pages) {}

    /// Asks for the printer's set-up until it is confirmed, then prints. Cancel brings the dialog
    /// back, meant so.
    void print() override;

    /// Nothing: a recorded surface counts in twips, its texts have no ground, and the renderer has
    /// set the width of its lines.
    void prepare() override {}

private:
    platform::PrinterSetup& setup_;
    PagePrinter& pages_;
};

} // namespace viewer
