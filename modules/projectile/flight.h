#pragma once

#include "projectile/integration.h"

namespace projectile {

struct Energies {
    double kinetic = 0;   ///< J
    double potential = 0; ///< J, 0 on the ground
    double mechanical() const { return kinetic + potential; }
};

/// The motion that follows from a launch, until the projectile is on the ground: in closed form
/// without drag (Galilei's parabola), integrated otherwise. Knows nothing of windows.
class Flight {
public:
    explicit Flight(const Launch& launch);

    const Launch& launch() const { return launch_; }

    /// Seconds from start to ground; 0 for a throw that stays on the ground.
    double duration() const { return landing_.t; }

    /// The state at `t` seconds, held within the flight.
    Moment at(double t) const;

    const Moment& start() const { return start_; }
    const Moment& apex() const { return apex_; } ///< highest point; the start for a throw downwards
    const Moment& landing() const { return landing_; }

    /// Horizontal distance from start to ground, m.
    double range() const { return landing_.x; }

    Acceleration acceleration(const Moment& moment) const {
        return accelerationAt(launch_, moment);
    }
    Energies energies(const Moment& moment) const;

    /// Decimals that energies need: those of a ping-pong ball are small, those of a shot large, and
    /// about four digits say enough.
    int energyDecimals() const;

private:
    bool isClosed() const { return steps_.empty(); }
    Moment closedForm(double t) const;
    Moment between(const Moment& a, const Moment& b, double t) const;

    Launch launch_;
    std::vector<Moment> steps_; ///< with drag
    Moment start_;
    Moment apex_;
    Moment landing_;
};

} // namespace projectile
