#pragma once

#include "output/paper/qt_printer.h"
#include "platform/message_box.h"
#include "platform/printer.h"

class QDialog;

namespace look {

/// Asks in the system's print dialog, or, where no printer is installed, in one of our own for a
/// PDF file. While a job is under way nothing is set up, which would cut it.
class QtPrinterSetup : public platform::PrinterSetup {
public:
    /// `messageBoxes` asks whether a file is to be replaced, and says what is wrong with its name.
    QtPrinterSetup(output::QtPrinter& printer, platform::MessageBoxes& messageBoxes)
        : printer_(printer), messageBoxes_(messageBoxes) {}

    Outcome ask() override;

private:
    Outcome askForPrinter();
    Outcome askForFile();

    output::QtPrinter& printer_;
    platform::MessageBoxes& messageBoxes_;
    bool speaksFrench_ = false;
};

} // namespace look
