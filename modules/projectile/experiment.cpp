#include "projectile/experiment.h"

#include "common/ticks.h"

#include <algorithm>
#include <utility>

namespace projectile {

namespace {

constexpr int kStrobePoints = 20;

} // namespace

Experiment::Experiment() : flight_(Launch{}) {
    player_.setDuration(flight_.duration());
}

void Experiment::setLaunch(const Launch& launch) {
    if (launch == flight_.launch())
        return;
    flight_ = Flight(launch);
    player_.setDuration(flight_.duration());
    changed_.tell();
}

void Experiment::setExercise(const Exercise& exercise) {
    situation_ = exercise;
    hidden_ = exercise.hidesResults;
    setLaunch(exercise.launch);
}

void Experiment::reveal() {
    hidden_ = false;
    changed_.tell();
}

void Experiment::set(Parameter parameter, double number) {
    if (isLocked(parameter))
        return;
    const Quantity& which = quantity(parameter);
    Launch launch = flight_.launch();
    launch.*which.value = which.held(number);
    setLaunch(launch);
}

void Experiment::aim(double speed, double angle) {
    Launch launch = flight_.launch();
    for (const auto& [parameter, number] :
         {std::pair(Parameter::Speed, speed), std::pair(Parameter::Angle, angle)}) {
        const Quantity& which = quantity(parameter);
        if (!isLocked(parameter))
            launch.*which.value = which.held(number);
    }
    setLaunch(launch);
}

void Experiment::setWorld(const World& world) {
    if (isLocked(Parameter::Gravity))
        return;
    Launch launch = flight_.launch();
    launch.gravity = world.gravity;
    launch.airDensity = world.airDensity;
    setLaunch(launch);
}

void Experiment::setDrag(Drag drag) {
    if (isDragLocked())
        return;
    Launch launch = flight_.launch();
    launch.drag = drag;
    setLaunch(launch);
}

bool Experiment::canKeep() const {
    return kept_.size() < kMostKept &&
           std::none_of(kept_.begin(), kept_.end(),
                        [this](const Flight& kept) { return kept.launch() == launch(); });
}

void Experiment::keep() {
    if (!canKeep())
        return;
    kept_.push_back(flight_);
    keptChanged_.tell();
}

void Experiment::forgetKept() {
    kept_.clear();
    keptChanged_.tell();
}

double strobeInterval(double duration) {
    return duration > 0 ? common::tickStep(duration, kStrobePoints) : 1;
}

std::vector<Moment> strobeMoments(const Flight& flight) {
    const double interval = strobeInterval(flight.duration());
    std::vector<Moment> moments;
    for (int i = 0; i * interval < flight.duration(); ++i)
        moments.push_back(flight.at(i * interval));
    moments.push_back(flight.landing());
    return moments;
}

} // namespace projectile
