#pragma once

#include "help/help_window.h"
#include "platform/help_viewer.h"

#include <QPointer>

#include <optional>

namespace help {

/// Opens the help: the course's own help file in the system's viewer, or the window with the
/// manual where the course has none or nothing here can show it.
class HelpOpener {
public:
    /// `installDir`, read at each opening, is the directory of the course.
    HelpOpener(const QString& installDir, platform::HelpViewer& viewer,
               const HelpPrinting& printing)
        : installDir_(installDir), viewer_(viewer), printing_(printing) {}
    ~HelpOpener();

    /// Returns at once. A window that is open already comes to the front.
    void open();

    /// The window with the manual, null while there is none.
    HelpWindow* window() const { return window_; }

private:
    void openManual();

    const QString& installDir_;
    platform::HelpViewer& viewer_;
    HelpPrinting printing_;
    std::optional<HelpBook> book_; ///< read at the first opening
    QPointer<HelpWindow> window_;
};

} // namespace help
