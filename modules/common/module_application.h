#pragma once

#include "look/held_keys.h"
#include "look/reduced_light.h"
#include "platform/x11_first.h"

#include <QApplication>

namespace common {

/// The application object of a module: French numbers, the look of the house, keys held down that
/// act once, the light-reduced view, and X11 before Wayland as the shell.
class ModuleApplication : public QApplication {
public:
    /// `x11First` has its effect while Qt looks for the screen, and ends then.
    ModuleApplication(int& argc, char** argv, const platform::X11First& x11First = {});

private:
    look::HeldKeys heldKeys_;
    look::ReducedLight reducedLight_;
};

} // namespace common
