#pragma once

#include "platform/beeper.h"

#include <QApplication>

namespace platform {

/// The beep of the desktop.
class QtBeeper : public Beeper {
public:
    void beep() override { QApplication::beep(); }
};

} // namespace platform
