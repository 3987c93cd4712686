#pragma once

#include "common/listeners.h"
#include "common/player.h"
#include "reaction/exercise.h"

namespace reaction {

/// What the windows show: a mixture, and how far it has reacted.
class Experiment {
public:
    Experiment();

    const Mixture& mixture() const { return mixture_; }
    const Reaction& reaction() const { return *mixture_.reaction; }

    /// Progress x now, mol: grows evenly while the player runs.
    double progress() const;
    double amountNow(std::size_t species) const { return mixture_.amount(species, progress()); }
    common::Player& player() { return player_; }

    /// The given numbers of an exercise, which nothing below changes any more.
    void setExercise(const Exercise& exercise);
    bool hasExercise() const { return exercise_.has_value(); }
    bool isLocked(std::size_t reactant) const {
        return exercise_ && exercise_->locked.at(reactant);
    }
    /// The end of the reaction is withheld until a right answer was given.
    bool hidesResults() const { return hidden_; }
    void reveal();

    // Each of these starts over.
    void setReaction(const Reaction& reaction);           ///< not in an exercise
    void setInitial(std::size_t reactant, double amount); ///< mol, held within kAmount

    /// Another amount of one reactant would let nothing remain: of the second, or of the first
    /// where that has to change.
    bool canBalance() const;
    void balance();

    // What is to be called when something has changed. Whoever asks lives as long as this does.
    using Listener = std::function<void()>;
    void onChanged(Listener show) { changed_.add(std::move(show)); } ///< the mixture, so everything
    void onMoved(Listener show) { player_.onMoved(std::move(show)); } ///< the progress

private:
    void setMixture(const Mixture& mixture);
    std::optional<Mixture> balanced() const;

    Mixture mixture_;
    std::optional<Exercise> exercise_;
    bool hidden_ = false;
    common::Player player_;
    common::Listeners changed_;
};

/// Whether there is an end that may be told.
inline bool showsEnd(const Experiment& experiment) {
    return !experiment.hidesResults() && experiment.mixture().limiting() != Limiting::Nothing;
}

/// What is limiting, a sentence: "Réactif limitant : le dioxygène."
std::u16string describe(const Mixture& mixture);

/// The same, as far as it may be told.
std::u16string verdictOf(const Experiment& experiment);

} // namespace reaction
