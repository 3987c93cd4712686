#pragma once

#include "platform/beeper.h"

namespace test_support {

class FakeBeeper : public platform::Beeper {
public:
    void beep() override { ++beeps; }

    int beeps = 0;
};

} // namespace test_support
