#pragma once

#include <QString>

namespace platform {

/// The system's viewer for help files (".hlp").
class HelpViewer {
public:
    virtual ~HelpViewer() = default;

    /// Shows the help file, or brings the window that shows it already to the front. False when
    /// there is no such viewer; what the viewer says about the file itself is between it and the
    /// person.
    virtual bool show(const QString& file) = 0;
};

} // namespace platform
