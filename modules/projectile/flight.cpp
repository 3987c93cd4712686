#include "projectile/flight.h"

#include <algorithm>
#include <cmath>

namespace projectile {

Flight::Flight(const Launch& launch) : launch_(launch), start_(startOf(launch)) {
    // An air that does not slow leaves the parabola.
    if (std::isinf(terminalSpeed(launch))) {
        apex_ = closedForm(std::max(0.0, start_.vy / launch.gravity));
        landing_ = closedForm(vacuumDuration(launch));
        landing_.y = 0;
        return;
    }
    steps_ = integrate(launch);
    landing_ = steps_.back();
    apex_ = *std::max_element(steps_.begin(), steps_.end(),
                              [](const Moment& a, const Moment& b) { return a.y < b.y; });
}

Moment Flight::at(double t) const {
    if (t <= 0)
        return start_;
    if (t >= landing_.t)
        return landing_;
    if (isClosed())
        return closedForm(t);
    const auto after = std::upper_bound(steps_.begin(), steps_.end(), t,
                                        [](double time, const Moment& m) { return time < m.t; });
    return between(*(after - 1), *after, t);
}

Moment Flight::closedForm(double t) const {
    // Galilei, "Discorsi" (1638), fourth day: uniform motion across, uniformly accelerated down.
    return {t, start_.vx * t, start_.y + start_.vy * t - launch_.gravity * t * t / 2, start_.vx,
            start_.vy - launch_.gravity * t};
}

Moment Flight::between(const Moment& a, const Moment& b, double t) const {
    // Cubic Hermite interpolation: value and slope agree with those of both ends.
    const double length = b.t - a.t;
    const double s = (t - a.t) / length;
    const double fromEnd = s * s * (3 - 2 * s);
    const double startSlope = length * s * (1 - s) * (1 - s);
    const double endSlope = length * s * s * (s - 1);
    const auto value = [&](double from, double to, double slopeFrom, double slopeTo) {
        return from + (to - from) * fromEnd + slopeFrom * startSlope + slopeTo * endSlope;
    };
    const Acceleration atA = acceleration(a);
    const Acceleration atB = acceleration(b);
    return {t, value(a.x, b.x, a.vx, b.vx), value(a.y, b.y, a.vy, b.vy),
            value(a.vx, b.vx, atA.x, atB.x), value(a.vy, b.vy, atA.y, atB.y)};
}

Energies Flight::energies(const Moment& moment) const {
    const double speed = moment.speed();
    return {launch_.mass * speed * speed / 2, launch_.mass * launch_.gravity * moment.y};
}

int Flight::energyDecimals() const {
    const double most = energies(start_).mechanical();
    return most > 0 ? std::clamp(3 - static_cast<int>(std::floor(std::log10(most))), 0, 4) : 0;
}

} // namespace projectile
