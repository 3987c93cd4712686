#pragma once

#include "platform/message_box.h"
#include "platform/pdf_opener.h"
#include "platform/printer.h"
#include "viewer/collaborators.h"
#include "viewer/page_printer.h"

namespace viewer {

/// What the print button does.
class PrintCommand : public PagePrinting {
public:
    /// All must outlive the command.
    struct Parts {
        platform::PrinterSetup& setup;
        platform::PrintPreview& preview;
        PagePrinter& pages;
        platform::MessageBoxes& messageBoxes;
        PrintNotices& notices;
        platform::PdfOpener& opener;
    };
    explicit PrintCommand(const Parts& parts) : parts_(parts) {}

    /// Asks for the printer's set-up until it is confirmed, shows the sheets, where there are any,
    /// and prints what is chosen then. Cancel brings the first dialog back, and a missing printer
    /// is passed over in silence, both meant so; the preview can be left. Afterwards a line says
    /// what was printed; of a job that was cut the person is told in a box.
    void print() override;

private:
    std::optional<PrintPart> chosenPart();
    void tell(const PrintRun& run);

    Parts parts_;
};

} // namespace viewer
