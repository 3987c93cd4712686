#pragma once

#include "look/held_keys.h"

#include <QApplication>

namespace common {

/// The application object of a module: French numbers, the look of the house, and keys held down
/// that act once.
class ModuleApplication : public QApplication {
public:
    ModuleApplication(int& argc, char** argv);

private:
    look::HeldKeys heldKeys_;
};

} // namespace common
