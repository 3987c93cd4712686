#include "projectile/experiment.h"

#include "common/french_number.h"
#include "common/ticks.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace projectile {

namespace {

constexpr int kStrobePoints = 20;

/// "v_0 = 20 m/s": the name is a formula, the unit upright.
QString value(const char16_t* name, double number, const char16_t* unit) {
    const QString blank =
        QString::fromUtf16(unit) == QStringLiteral("°") ? QString() : QStringLiteral("\u00A0");
    return QStringLiteral("%1\u00A0=\u00A0%2\\text{%3%4}")
        .arg(QString::fromUtf16(name), common::frenchDigits(number, 3), blank,
             QString::fromUtf16(unit));
}

QString words(const QString& text) {
    return QStringLiteral("\\text{%1}").arg(text);
}

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
    exercise_ = exercise;
    setLaunch(exercise.launch);
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

QString describe(const Launch& launch) {
    QStringList parts = {value(u"v_0", launch.speed, u"m/s"), value(u"α", launch.angle, u"°")};
    if (launch.height > 0)
        parts += value(u"h", launch.height, u"m");
    const std::optional<World> world = worldOf(launch);
    if (!world)
        parts += value(u"g", launch.gravity, u"m/s²");
    else if (world->gravity != kWorlds.front().gravity)
        parts += words(QString::fromUtf16(world->name));
    // Somebody's own gravity keeps the air of the world before: drag may have nothing to act with.
    if (launch.drag != Drag::None && launch.airDensity == 0)
        parts += words(QStringLiteral("sans air"));
    else if (launch.drag == Drag::Linear)
        parts += value(u"k", launch.linearCoefficient, u"kg/s");
    else if (launch.drag == Drag::Quadratic)
        parts += value(u"m", launch.mass, u"kg") + QStringLiteral(", ") +
                 value(u"d", launch.diameter, u"m");
    return parts.join(QStringLiteral(", "));
}

double strobeInterval(double duration) {
    return duration > 0 ? common::tickStep(duration, kStrobePoints) : 1;
}

} // namespace projectile
