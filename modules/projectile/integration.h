#pragma once

#include "projectile/launch.h"

#include <vector>

namespace projectile {

/// Where the projectile is and how it moves: s, m, m/s; x to the right, y up from the ground.
struct Moment {
    double t = 0;
    double x = 0;
    double y = 0;
    double vx = 0;
    double vy = 0;

    double speed() const;
};

struct Acceleration {
    double x = 0; ///< m/s²
    double y = 0;
};

/// Drag coefficient Cx of a smooth sphere at the Reynolds numbers of balls and stones (10³ to
/// 2·10⁵), as textbooks of fluid mechanics give it (Hoerner, "Fluid-Dynamic Drag").
inline constexpr double kSphereDrag = 0.47;

/// Newton's second law: m a = m g - f v/|v|, with the force f of Launch::drag.
Acceleration accelerationAt(const Launch& launch, const Moment& moment);

/// Speed at which the drag balances the weight; infinite without drag.
double terminalSpeed(const Launch& launch);

Moment startOf(const Launch& launch);

/// One step of `step` seconds by the classical Runge-Kutta method of order 4.
Moment rungeKutta4(const Launch& launch, const Moment& from, double step);

/// A flight from its start to the ground, by steps whose error is held at kTolerance: each is done
/// once and in two halves, the difference tells its error (Richardson). The last moment is on the
/// ground (y = 0), found by halving the last step to the limits of double numbers. Also the apex is
/// one of the moments, when the flight has one after its start.
///
/// A flight that takes more than kMostSteps stops there, above the ground. The longest within the
/// sliders' limits, a sinking of more than an hour, takes some 54,000.
inline constexpr double kTolerance = 1e-9; ///< m and m/s a step
inline constexpr std::size_t kMostSteps = 100'000;

std::vector<Moment> integrate(const Launch& launch);

/// Time without drag from the start to the ground, s.
double vacuumDuration(const Launch& launch);

} // namespace projectile
