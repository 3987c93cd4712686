#pragma once

#include "platform/help_viewer.h"
#include "platform/processes.h"

namespace platform {

/// On Windows the viewer that help files belong to, elsewhere that of Wine, where Wine is
/// installed.
class SystemHelpViewer : public HelpViewer {
public:
    /// `activator` finds the window of a viewer started earlier.
    explicit SystemHelpViewer(WindowActivator& activator) : activator_(activator) {}

    bool show(const QString& file) override;

private:
    WindowActivator& activator_;
    qint64 pid_ = 0; ///< of the viewer started last; 0 for none
};

} // namespace platform
