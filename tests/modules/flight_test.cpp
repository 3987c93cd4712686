#include "common/playback.h"
#include "common/ticks.h"
#include "projectile/experiment.h"
#include "projectile/flight.h"
#include "projectile/launch_text.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace projectile;
using common::Playback;
using common::tickDecimals;
using common::ticks;
using common::tickStep;
using testing::DoubleEq;
using testing::DoubleNear;
using testing::ElementsAre;

namespace {

/// A handball, hard thrown.
Launch handball(Drag drag) {
    Launch launch;
    launch.speed = 25;
    launch.mass = 0.45;
    launch.diameter = 0.19;
    launch.drag = drag;
    return launch;
}

/// Motion with f = k v in closed form, as textbooks of mechanics derive it.
Moment slowed(const Launch& launch, double t) {
    const Moment start = startOf(launch);
    const double tau = launch.mass / launch.linearCoefficient;
    const double fallen = launch.gravity * tau;
    const double left = std::exp(-t / tau);
    return {t, start.vx * tau * (1 - left),
            start.y + (start.vy + fallen) * tau * (1 - left) - fallen * t, start.vx * left,
            (start.vy + fallen) * left - fallen};
}

} // namespace

TEST(Flight, withoutDragAgreesWithKnownThrows) {
    const struct {
        double speed, angle, height, gravity, duration, range, top;
    } rows[] = {
        {20, 45, 0, 9.81, 2.883208, 40.774720, 10.193680}, // v²/g
        {12, 0, 20, 9.81, 2.019275, 24.231301, 20},        // √(2h/g)
        {0, 45, 4.905, 9.81, 1, 0, 4.905},                 // dropped
        {14, 90, 0, 9.81, 2.854230, 0, 9.989806},          // straight up
        {20, 45, 0, 1.62, 17.459426, 246.913580, 61.728395},
        {10, -30, 5, 10, 0.618034, 5.352331, 5}, // (√5 - 1)/2
        {20, -10, 0, 9.81, 0, 0, 0},             // stays on the ground
    };
    for (const auto& row : rows) {
        Launch launch;
        launch.speed = row.speed;
        launch.angle = row.angle;
        launch.height = row.height;
        launch.gravity = row.gravity;
        const Flight flight(launch);
        EXPECT_NEAR(flight.duration(), row.duration, 1e-6) << row.speed << ' ' << row.angle;
        EXPECT_NEAR(flight.range(), row.range, 1e-6) << row.speed << ' ' << row.angle;
        EXPECT_NEAR(flight.apex().y, row.top, 1e-6) << row.speed << ' ' << row.angle;
        EXPECT_EQ(flight.landing().y, 0);
    }
}

TEST(Flight, keepsItsEnergyWithoutDragAndLosesSomeWithIt) {
    for (const Drag drag : {Drag::None, Drag::Linear, Drag::Quadratic}) {
        const Flight flight(handball(drag));
        double before = flight.energies(flight.start()).mechanical();
        for (int i = 1; i <= 100; ++i) {
            const Moment moment = flight.at(flight.duration() * i / 100);
            const double now = flight.energies(moment).mechanical();
            if (drag == Drag::None)
                EXPECT_NEAR(now, before, before * 1e-9);
            else
                EXPECT_LT(now, before);
            before = now;
        }
    }
}

TEST(Flight, agreesWithTheClosedFormOfLinearDrag) {
    const Launch launch = handball(Drag::Linear);
    const Flight flight(launch);
    for (int i = 0; i <= 50; ++i) {
        const Moment got = flight.at(flight.duration() * i / 50);
        const Moment expected = slowed(launch, got.t);
        EXPECT_NEAR(got.x, expected.x, 1e-6);
        EXPECT_NEAR(got.y, expected.y, 1e-6);
        EXPECT_NEAR(got.vx, expected.vx, 1e-5);
        EXPECT_NEAR(got.vy, expected.vy, 1e-5);
    }
    EXPECT_NEAR(slowed(launch, flight.duration()).y, 0, 1e-7);
    EXPECT_NEAR(flight.apex().vy, 0, 1e-9);
}

TEST(Flight, itsMethodIsOfOrderFour) {
    const Launch launch = handball(Drag::Linear);
    const auto error = [&](int steps) {
        Moment moment = startOf(launch);
        for (int i = 0; i < steps; ++i)
            moment = rungeKutta4(launch, moment, 2.0 / steps);
        return std::fabs(moment.x - slowed(launch, 2).x);
    };
    EXPECT_NEAR(std::log2(error(8) / error(16)), 4, 0.2);
}

TEST(Flight, fallsAtItsTerminalSpeedInTheEnd) {
    for (const Drag drag : {Drag::Linear, Drag::Quadratic}) {
        Launch launch = handball(drag);
        launch.mass = 0.01;
        launch.height = 100;
        launch.linearCoefficient = 0.2;
        const Flight flight(launch);
        EXPECT_NEAR(flight.landing().speed(), terminalSpeed(launch), 1e-6);
        EXPECT_NEAR(flight.acceleration(flight.landing()).y, 0, 1e-5);
    }
    Launch ball = handball(Drag::Quadratic); // √(2 m g / (ρ Cx π d²/4))
    EXPECT_NEAR(terminalSpeed(ball), 23.257, 1e-3);
}

TEST(Flight, isShorterInAirAndTheSameWhereThereIsNone) {
    const double vacuum = Flight(handball(Drag::None)).range();
    // The course says so: more than a third is lost.
    EXPECT_LT(Flight(handball(Drag::Quadratic)).range(), vacuum * 2 / 3);
    EXPECT_LT(Flight(handball(Drag::Linear)).range(), vacuum);
    for (const Drag drag : {Drag::Linear, Drag::Quadratic}) {
        Launch launch = handball(drag);
        launch.airDensity = 0;
        EXPECT_THAT(Flight(launch).range(), DoubleEq(vacuum));
    }
}

TEST(Flight, everyThrowWithinTheSlidersLimitsLands) {
    for (const Drag drag : {Drag::None, Drag::Linear, Drag::Quadratic}) {
        for (unsigned corner = 0; corner < 1U << kQuantities.size(); ++corner) {
            Launch launch;
            launch.drag = drag;
            for (std::size_t i = 0; i < kQuantities.size(); ++i)
                launch.*kQuantities.at(i).value =
                    (corner >> i & 1U) != 0 ? kQuantities.at(i).most : kQuantities.at(i).least;
            const Flight flight(launch);
            EXPECT_EQ(flight.landing().y, 0) << corner;
            EXPECT_TRUE(std::isfinite(flight.range()) && std::isfinite(flight.duration()));
            EXPECT_GE(flight.apex().y, launch.height);
        }
    }
}

TEST(Playback, runsToTheEndAndStartsOver) {
    Playback playback;
    playback.toggle();
    EXPECT_FALSE(playback.isRunning()); // nothing to show
    playback.setDuration(2);
    playback.setRate(0.5);
    playback.toggle();
    playback.advance(1);
    EXPECT_THAT(playback.time(), DoubleEq(0.5));
    playback.setDuration(0.4); // another throw, shorter than the time that has passed
    EXPECT_TRUE(playback.isAtEnd());
    EXPECT_FALSE(playback.isRunning());
    playback.toggle();
    EXPECT_EQ(playback.time(), 0);
    EXPECT_TRUE(playback.isRunning());
    playback.step(-1);
    EXPECT_EQ(playback.time(), 0);
    EXPECT_FALSE(playback.isRunning());
}

TEST(Ticks, areEasyToRead) {
    const struct {
        double length;
        int most;
        double step;
        int decimals;
    } rows[] = {{10, 5, 2, 0},   {11, 5, 5, 0}, {0.3, 3, 0.1, 1},
                {247, 8, 50, 0}, {1, 1, 1, 0},  {0.06, 5, 0.02, 2}};
    for (const auto& row : rows) {
        EXPECT_THAT(tickStep(row.length, row.most), DoubleNear(row.step, 1e-12)) << row.length;
        EXPECT_EQ(tickDecimals(row.step), row.decimals) << row.step;
    }
    EXPECT_THAT(ticks(-0.1, 0.31, 0.1),
                ElementsAre(DoubleNear(-0.1, 1e-12), 0, DoubleNear(0.1, 1e-12),
                            DoubleNear(0.2, 1e-12), DoubleNear(0.3, 1e-12)));
}

TEST(Experiment, holdsNumbersWithinLimitsAndLeavesLockedOnesAlone) {
    Experiment experiment;
    experiment.set(Parameter::Speed, 1000);
    experiment.set(Parameter::Mass, -3);
    EXPECT_EQ(experiment.launch().speed, 60);
    EXPECT_EQ(experiment.launch().mass, 0.01);
    Exercise situation;
    situation.locked = {Parameter::Speed, Parameter::Gravity};
    situation.dragLocked = true;
    experiment.setExercise(situation);
    experiment.aim(33, 30);
    experiment.setWorld(kWorlds[1]);
    experiment.setDrag(Drag::Quadratic);
    Launch expected;
    expected.angle = 30;
    EXPECT_EQ(experiment.launch(), expected);
}

TEST(Experiment, isDescribedWithSymbolsInItalicsAndUnitsUpright) {
    Launch launch;
    EXPECT_EQ(describe(launch), u"v_0\u00A0=\u00A020\\text{\u00A0m/s}, α\u00A0=\u00A045\\text{°}");
    launch.gravity = 5;
    launch.drag = Drag::Quadratic;
    EXPECT_TRUE(describe(launch).ends_with(u"d\u00A0=\u00A00,24\\text{\u00A0m}"));
    launch.airDensity = 0; // says where there is no air to act with
    EXPECT_TRUE(describe(launch).ends_with(u"g\u00A0=\u00A05\\text{\u00A0m/s²}, \\text{sans air}"));
}

TEST(Experiment, keepsEachPathOnce) {
    Experiment experiment;
    experiment.keep();
    EXPECT_FALSE(experiment.canKeep());
    for (int i = 0; i < 10; ++i) {
        experiment.set(Parameter::Angle, i);
        experiment.keep();
    }
    EXPECT_EQ(experiment.kept().size(), std::size_t{Experiment::kMostKept});
    experiment.forgetKept();
    EXPECT_TRUE(experiment.canKeep());
}
