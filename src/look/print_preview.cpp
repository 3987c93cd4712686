#include "look/print_preview.h"

#include "look/print_preview_dialog.h"

#include <QApplication>
#include <QPrinter>

namespace look {

std::optional<int> QtPrintPreview::ask(platform::PrintProposal& proposal) {
    QPrinter& device = printer_.device();
    const QPageLayout before = device.pageLayout();
    const auto setLayout = [&](const QPageLayout& layout) {
        device.setPageLayout(layout);
        return printer_.paper();
    };
    PrintPreviewDialog dialog({proposal, fonts_, printer_.target(), before, setLayout},
                              QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted)
        return dialog.choice();
    device.setPageLayout(before);
    return std::nullopt;
}

} // namespace look
