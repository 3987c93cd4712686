#pragma once

#include "output/paper/qt_printer.h"
#include "platform/printer.h"

namespace look {

/// The preview in a window. The paper chosen there is that of the printer, unless nothing is
/// printed.
class QtPrintPreview : public platform::PrintPreview {
public:
    QtPrintPreview(output::QtPrinter& printer, const page::FontBook& fonts)
        : printer_(printer), fonts_(fonts) {}

    std::optional<int> ask(platform::PrintProposal& proposal) override;

private:
    output::QtPrinter& printer_;
    const page::FontBook& fonts_;
};

} // namespace look
