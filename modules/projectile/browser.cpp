// The simulation as JavaScript runs it: one experiment, which lives as long as the program. Numbers
// are in the units of launch.h and integration.h.

#include "browser/exchange.h"
#include "common/ticks.h"
#include "projectile/experiment.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using namespace projectile;
using browser::give;
using browser::kFieldEnd;
using browser::kRecordEnd;

/// More points of a path than any screen is wide are not asked for.
constexpr int kMostPoints = 4000;

Experiment experiment;

/// The flight that the controls describe for -1, otherwise one of those kept; that same one also
/// for what is none.
const Flight& flightNumber(int which) {
    const bool isKept = which >= 0 && std::cmp_less(which, experiment.kept().size());
    return isKept ? experiment.kept()[static_cast<std::size_t>(which)] : experiment.flight();
}

template <class Items>
const auto& itemOf(const Items& items, int which) {
    const int last = static_cast<int>(items.size()) - 1;
    return items.at(static_cast<std::size_t>(std::clamp(which, 0, last)));
}

/// Seven numbers: t, x, y, vx, vy, kinetic and potential energy.
void addMoment(std::vector<double>& numbers, const Flight& flight, const Moment& moment) {
    const Energies energies = flight.energies(moment);
    numbers.insert(numbers.end(), {moment.t, moment.x, moment.y, moment.vx, moment.vy,
                                   energies.kinetic, energies.potential});
}

} // namespace

/// A record for each number of a launch: name, symbol (a formula), unit, decimals.
ORVALENTE_EXPORTED(projectileQuantities) std::size_t projectileQuantities() {
    std::u16string all;
    for (const Quantity& one : kQuantities) {
        for (const char16_t* text : {one.name, one.symbol, one.unit})
            all.append(text).append(1, kFieldEnd);
        all.append(browser::decimal(one.decimals)).append(1, kRecordEnd);
    }
    return give(all);
}

/// A record for each world: its name.
ORVALENTE_EXPORTED(projectileWorlds) std::size_t projectileWorlds() {
    std::u16string all;
    for (const World& world : kWorlds)
        all.append(world.name).append(1, kRecordEnd);
    return give(all);
}

/// For each number of the launch its value, the slider's position and the last position; then the
/// drag, and the number of the world, -1 for none.
ORVALENTE_EXPORTED(projectileLaunch) std::size_t projectileLaunch() {
    const Launch& launch = experiment.launch();
    std::vector<double> all;
    for (const Quantity& one : kQuantities) {
        const double value = launch.*one.value;
        all.insert(all.end(),
                   {value, double(one.positionOf(value)), double(one.positionOf(one.most))});
    }
    all.push_back(static_cast<int>(launch.drag));
    const std::optional<World> world = worldOf(launch);
    int number = -1;
    for (std::size_t i = 0; i < kWorlds.size() && world; ++i)
        if (kWorlds[i].gravity == world->gravity)
            number = static_cast<int>(i);
    all.push_back(number);
    return browser::giveNumbers(all);
}

ORVALENTE_EXPORTED(projectileSet) void projectileSet(int parameter, double value) {
    if (std::isfinite(value)) // what was typed may be no number
        experiment.set(itemOf(kQuantities, parameter).parameter, value);
}

ORVALENTE_EXPORTED(projectileSlide) void projectileSlide(int parameter, int position) {
    const Quantity& which = itemOf(kQuantities, parameter);
    experiment.set(which.parameter, which.valueAt(position));
}

ORVALENTE_EXPORTED(projectileAim) void projectileAim(double speed, double angle) {
    if (std::isfinite(speed) && std::isfinite(angle))
        experiment.aim(speed, angle);
}

ORVALENTE_EXPORTED(projectileWorld) void projectileWorld(int which) {
    experiment.setWorld(itemOf(kWorlds, which));
}

ORVALENTE_EXPORTED(projectileDrag) void projectileDrag(int drag) {
    experiment.setDrag(static_cast<Drag>(std::clamp(drag, 0, static_cast<int>(Drag::Quadratic))));
}

/// A flight: duration, range, x and y of its highest point, speed of arrival, height of the start;
/// then `parts` + 1 moments at equal times.
ORVALENTE_EXPORTED(projectileFlight) std::size_t projectileFlight(int which, int parts) {
    const Flight& flight = flightNumber(which);
    const int count = std::clamp(parts, 1, kMostPoints);
    std::vector<double> all = {flight.duration(), flight.range(),           flight.apex().x,
                               flight.apex().y,   flight.landing().speed(), flight.start().y};
    for (int i = 0; i <= count; ++i)
        addMoment(all, flight, flight.at(flight.duration() * i / count));
    return browser::giveNumbers(all);
}

/// What tells a flight from others: records of a symbol, a unit and words (launch.h).
ORVALENTE_EXPORTED(projectileDistinctions) std::size_t projectileDistinctions(int which) {
    std::u16string all;
    for (const Distinction& one : distinctions(flightNumber(which).launch())) {
        all.append(one.symbol ? one.symbol : u"").append(1, kFieldEnd);
        all.append(one.unit).append(1, kFieldEnd).append(one.words).append(1, kRecordEnd);
    }
    return give(all);
}

/// The values that go with them.
ORVALENTE_EXPORTED(projectileDistinctionValues) std::size_t projectileDistinctionValues(int which) {
    std::vector<double> all;
    for (const Distinction& one : distinctions(flightNumber(which).launch()))
        all.push_back(one.value);
    return browser::giveNumbers(all);
}

/// The stroboscope's interval and the decimals that energies need; then t, x, y, vx, vy, kinetic
/// and potential energy for each of its points and for the landing.
ORVALENTE_EXPORTED(projectileStrobe) std::size_t projectileStrobe() {
    const Flight& flight = experiment.flight();
    std::vector<double> all = {strobeInterval(flight.duration()), double(flight.energyDecimals())};
    for (const Moment& moment : strobeMoments(flight)) {
        addMoment(all, flight, moment);
    }
    return browser::giveNumbers(all);
}

/// The moment looked at, the acceleration across and up, 1 while it runs, 1 when the flight may be
/// kept.
ORVALENTE_EXPORTED(projectileNow) std::size_t projectileNow() {
    const Moment now = experiment.now();
    const Acceleration acceleration = experiment.flight().acceleration(now);
    std::vector<double> all;
    addMoment(all, experiment.flight(), now);
    all.insert(all.end(),
               {acceleration.x, acceleration.y, double(experiment.playback().isRunning()),
                double(experiment.canKeep())});
    return browser::giveNumbers(all);
}

ORVALENTE_EXPORTED(projectileToggle) void projectileToggle() {
    experiment.player().play([](common::Playback& playback) { playback.toggle(); });
}

ORVALENTE_EXPORTED(projectilePause) void projectilePause() {
    experiment.player().play([](common::Playback& playback) { playback.pause(); });
}

ORVALENTE_EXPORTED(projectileReset) void projectileReset() {
    experiment.player().play([](common::Playback& playback) { playback.reset(); });
}

ORVALENTE_EXPORTED(projectileStep) void projectileStep(double seconds) {
    if (std::isfinite(seconds))
        experiment.player().play([=](common::Playback& playback) { playback.step(seconds); });
}

ORVALENTE_EXPORTED(projectileSeek) void projectileSeek(double seconds) {
    if (std::isfinite(seconds))
        experiment.player().play([=](common::Playback& playback) { playback.seek(seconds); });
}

/// `seconds` of the clock on the wall have passed, at `rate` seconds of the flight in each.
ORVALENTE_EXPORTED(projectileAdvance) void projectileAdvance(double seconds, double rate) {
    if (!std::isfinite(seconds) || !std::isfinite(rate))
        return;
    experiment.player().play([=](common::Playback& playback) {
        playback.setRate(rate);
        playback.advance(seconds);
    });
}

ORVALENTE_EXPORTED(projectileKeep) void projectileKeep() {
    experiment.keep();
}

ORVALENTE_EXPORTED(projectileForget) void projectileForget() {
    experiment.forgetKept();
}

ORVALENTE_EXPORTED(projectileKept) int projectileKept() {
    return static_cast<int>(experiment.kept().size());
}

/// The decimals that labels of an axis need, then the values where they stand.
ORVALENTE_EXPORTED(axisTicks) std::size_t axisTicks(double from, double to, int most) {
    const double step = common::tickStep(to - from, std::max(1, most));
    std::vector<double> all = {double(common::tickDecimals(step))};
    for (const double value : common::ticks(from, to, step))
        all.push_back(value);
    return browser::giveNumbers(all);
}
