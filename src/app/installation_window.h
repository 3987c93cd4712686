#pragma once

#include "platform/error_box_starter.h"
#include "shell/shared_state.h"
#include "viewer/collaborators.h"

class QWidget;

namespace app {

/// Opens `maj2001` over the main window. A program that does not start from it is told of by the
/// platform: where the system itself keeps silent, a person would wait for nothing.
class InstallationWindow : public viewer::ModalWindow {
public:
    /// All must outlive this one.
    InstallationWindow(const shell::SharedState& state, platform::ProcessStarter& processes,
                       platform::MessageBoxes& messageBoxes, QWidget& window)
        : state_(state), starter_(processes, messageBoxes), window_(window) {}

    void open() override;

private:
    const shell::SharedState& state_;
    platform::ErrorBoxStarter starter_;
    QWidget& window_;
};

} // namespace app
