#include "projectile/integration.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace projectile {

namespace {

/// Enough to halve any step down to neighbouring double numbers.
constexpr int kHalvings = 200;

/// A flight has at least so many steps: curves between them are cubic.
constexpr double kLeastSteps = 32;

constexpr double kRadiansPerDegree = std::numbers::pi / 180;

/// Factor ½ ρ Cx S of the square of the speed, kg/m.
double quadraticFactor(const Launch& launch) {
    const double section = std::numbers::pi * launch.diameter * launch.diameter / 4;
    return launch.airDensity * kSphereDrag * section / 2;
}

/// Without air there is nothing to be slowed by.
double linearFactor(const Launch& launch) {
    return launch.airDensity > 0 ? launch.linearCoefficient : 0;
}

double difference(const Moment& a, const Moment& b) {
    return std::max({std::fabs(a.x - b.x), std::fabs(a.y - b.y), std::fabs(a.vx - b.vx),
                     std::fabs(a.vy - b.vy)});
}

struct Step {
    Moment end;
    double error;
};

Step tried(const Launch& launch, const Moment& from, double step) {
    const Moment whole = rungeKutta4(launch, from, step);
    const Moment half = rungeKutta4(launch, from, step / 2);
    const Moment halves = rungeKutta4(launch, half, step / 2);
    // Halving divides the error of a method of order 4 by 16: what is left is a fifteenth of what
    // the two differ by.
    return {halves, difference(whole, halves) / 15};
}

/// The end of the step from `from`, no longer than `step`, at which `value` becomes 0: it is
/// positive at the start and not at the end.
template <class Value>
Moment crossing(const Launch& launch, const Moment& from, double step, Value value) {
    double before = 0;
    double after = step;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (before + after) / 2;
        if (middle <= before || middle >= after)
            break;
        (value(rungeKutta4(launch, from, middle)) > 0 ? before : after) = middle;
    }
    return rungeKutta4(launch, from, after);
}

} // namespace

double Moment::speed() const {
    return std::hypot(vx, vy);
}

Acceleration accelerationAt(const Launch& launch, const Moment& moment) {
    double perSpeed = 0; // force over speed, kg/s
    if (launch.drag == Drag::Linear)
        perSpeed = linearFactor(launch);
    else if (launch.drag == Drag::Quadratic)
        perSpeed = quadraticFactor(launch) * moment.speed();
    return {-perSpeed * moment.vx / launch.mass,
            -launch.gravity - perSpeed * moment.vy / launch.mass};
}

double terminalSpeed(const Launch& launch) {
    const double weight = launch.mass * launch.gravity;
    switch (launch.drag) {
    case Drag::Linear:
        return linearFactor(launch) > 0 ? weight / linearFactor(launch)
                                        : std::numeric_limits<double>::infinity();
    case Drag::Quadratic:
        return std::sqrt(weight / quadraticFactor(launch));
    case Drag::None:
        break;
    }
    return std::numeric_limits<double>::infinity();
}

Moment startOf(const Launch& launch) {
    const double angle = launch.angle * kRadiansPerDegree;
    // The cosine of a right angle in radians is not quite 0; a vertical throw is vertical.
    const double across = std::fabs(launch.angle) == 90 ? 0 : std::cos(angle);
    return {0, 0, launch.height, launch.speed * across, launch.speed * std::sin(angle)};
}

Moment rungeKutta4(const Launch& launch, const Moment& from, double step) {
    struct Slope {
        double x, y, vx, vy;
    };
    const auto slopeAt = [&](const Moment& moment) {
        const Acceleration a = accelerationAt(launch, moment);
        return Slope{moment.vx, moment.vy, a.x, a.y};
    };
    const auto after = [&](const Slope& slope, double time) {
        return Moment{from.t + time, from.x + time * slope.x, from.y + time * slope.y,
                      from.vx + time * slope.vx, from.vy + time * slope.vy};
    };
    const Slope a = slopeAt(from);
    const Slope b = slopeAt(after(a, step / 2));
    const Slope c = slopeAt(after(b, step / 2));
    const Slope d = slopeAt(after(c, step));
    const auto mean = [&](double Slope::*part) {
        return (a.*part + 2 * b.*part + 2 * c.*part + d.*part) / 6;
    };
    return after({mean(&Slope::x), mean(&Slope::y), mean(&Slope::vx), mean(&Slope::vy)}, step);
}

std::vector<Moment> integrate(const Launch& launch) {
    std::vector<Moment> moments = {startOf(launch)};
    const double longest = vacuumDuration(launch) / kLeastSteps;
    if (longest <= 0)
        return moments;
    const auto height = [](const Moment& moment) { return moment.y; };
    const auto rise = [](const Moment& moment) { return moment.vy; };

    double step = longest;
    while (moments.size() < kMostSteps) {
        const Moment from = moments.back();
        const Step next = tried(launch, from, step);
        // The error of one step goes with its fifth power; 0.9 keeps clear of the border.
        const double fits =
            step *
            std::clamp(0.9 * std::pow(kTolerance / std::max(next.error, 1e-30), 0.2), 0.2, 4.0);
        if (next.error > kTolerance) {
            step = fits;
            continue;
        }
        if (rise(from) > 0 && rise(next.end) < 0)
            moments.push_back(crossing(launch, from, step, rise));
        if (next.end.y <= 0 && next.end.vy < 0) {
            Moment landing = crossing(launch, from, step, height);
            landing.y = 0;
            moments.push_back(landing);
            return moments;
        }
        moments.push_back(next.end);
        step = std::min(fits, longest);
    }
    return moments;
}

double vacuumDuration(const Launch& launch) {
    const double up = startOf(launch).vy;
    return (up + std::sqrt(up * up + 2 * launch.gravity * launch.height)) / launch.gravity;
}

} // namespace projectile
