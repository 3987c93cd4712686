#pragma once

#include "platform/message_box.h"
#include "platform/printer.h"
#include "platform/qt/qt_printer.h"

class QDialog;

namespace platform {

/// Asks in the system's print dialog, or, where no printer is installed, in one of our own for a
/// PDF file. While a job is under way nothing is set up, which would cut it.
class QtPrinterSetup : public PrinterSetup {
public:
    /// `prompter` asks whether a file is to be replaced, and says what is wrong with its name.
    QtPrinterSetup(QtPrinter& printer, Prompter& prompter)
        : printer_(printer), prompter_(prompter) {}

    Outcome ask() override;

private:
    Outcome askForPrinter();
    Outcome askForFile();

    QtPrinter& printer_;
    Prompter& prompter_;
    bool speaksFrench_ = false;
};

} // namespace platform
