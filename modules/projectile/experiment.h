#pragma once

#include "common/listeners.h"
#include "common/player.h"
#include "projectile/exercise.h"
#include "projectile/flight.h"

#include <vector>

namespace projectile {

/// What the windows show: the flight that the controls describe, those kept for comparison, and the
/// moment at which one looks.
class Experiment {
public:
    /// More would be a tangle, and there are no more inks.
    static constexpr int kMostKept = 5;

    Experiment();

    const Flight& flight() const { return flight_; }
    const Launch& launch() const { return flight_.launch(); }
    const common::Playback& playback() const { return player_.playback(); }
    Moment now() const { return flight_.at(playback().time()); }

    /// The given numbers of an exercise: nothing below changes those any more that are locked.
    void setExercise(const Exercise& exercise);
    /// What the flight comes to is withheld until a right answer was given.
    bool hidesResults() const { return hidden_; }
    void reveal();
    bool isLocked(Parameter parameter) const { return situation_.isLocked(parameter); }
    bool isDragLocked() const { return situation_.dragLocked; }
    const std::vector<Landmark>& landmarks() const { return situation_.landmarks; }

    /// These hold the numbers within the sliders' limits, and leave locked ones alone.
    void set(Parameter parameter, double value);
    void aim(double speed, double angle);
    void setWorld(const World& world);
    void setDrag(Drag drag);

    /// What runs, stops and steps.
    common::Player& player() { return player_; }

    /// In the order in which they were kept; a flight's place is also its ink.
    const std::vector<Flight>& kept() const { return kept_; }
    /// False when as many as can be are kept, or this very flight is.
    bool canKeep() const;
    void keep();
    void forgetKept();

    // What is to be called when something has changed. Whoever asks lives as long as this does.
    using Listener = std::function<void()>;
    void onChanged(Listener show) { changed_.add(std::move(show)); } ///< the launch, so everything
    void onMoved(Listener show) {
        player_.onMoved(std::move(show));
    } ///< the moment, or whether it runs
    void onKeptChanged(Listener show) { keptChanged_.add(std::move(show)); }

private:
    void setLaunch(const Launch& launch);

    Situation situation_;
    bool hidden_ = false;
    Flight flight_;
    common::Player player_;
    std::vector<Flight> kept_;
    common::Listeners changed_;
    common::Listeners keptChanged_;
};

/// The time between two points of a stroboscope, s: easy to count with, ten to twenty a flight.
double strobeInterval(double duration);

/// The moments of those points, and the landing.
std::vector<Moment> strobeMoments(const Flight& flight);

} // namespace projectile
