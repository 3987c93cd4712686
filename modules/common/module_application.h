#pragma once

#include "look/held_keys.h"
#include "look/reduced_light.h"

#include <QApplication>

namespace common {

/// The application object of a module: French numbers, the look of the house, keys held down that
/// act once, and the light-reduced view.
class ModuleApplication : public QApplication {
public:
    ModuleApplication(int& argc, char** argv);

private:
    look::HeldKeys heldKeys_;
    look::ReducedLight reducedLight_;
};

} // namespace common
