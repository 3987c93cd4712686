#pragma once

#include "platform/message_box.h"
#include "platform/printer.h"
#include "viewer/collaborators.h"
#include "viewer/page_printer.h"

namespace viewer {

/// What the print button does.
class PrintCommand : public PagePrinting {
public:
    PrintCommand(platform::PrinterSetup& setup, PagePrinter& pages,
                 platform::MessageBoxes& messageBoxes)
        : setup_(setup), pages_(pages), messageBoxes_(messageBoxes) {}

    /// Asks for the printer's set-up until it is confirmed, then prints. Cancel brings the dialog
    /// back, and a missing printer is passed over in silence, both meant so; of a job that was cut
    /// the person is told.
    void print() override;

private:
    platform::PrinterSetup& setup_;
    PagePrinter& pages_;
    platform::MessageBoxes& messageBoxes_;
};

} // namespace viewer
