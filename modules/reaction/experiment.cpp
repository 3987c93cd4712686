#include "reaction/experiment.h"

#include <utility>

namespace reaction {

namespace {

/// From the start of the reaction to its end, s of the clock.
constexpr double kDuration = 5;

/// "le dioxygène", "l’eau", "l’ion zinc".
std::u16string withArticle(const Species& species) {
    const std::u16string_view name = species.name;
    const bool elided = std::u16string_view(u"aeiouéh").find(name.front()) != name.npos;
    return std::u16string(elided ? u"l’" : u"le ").append(name);
}

} // namespace

Experiment::Experiment() {
    player_.setDuration(kDuration);
}

double Experiment::progress() const {
    const common::Playback& playback = player_.playback();
    // At the end exactly, whatever is lost in dividing.
    return playback.isAtEnd() ? mixture_.maximum()
                              : mixture_.maximum() * playback.time() / playback.duration();
}

void Experiment::setMixture(const Mixture& mixture) {
    if (mixture == mixture_)
        return;
    mixture_ = mixture;
    changed_.tell(); // first: another reaction has other columns
    player_.play([this](common::Playback& playback) {
        playback.reset();
        playback.setDuration(mixture_.maximum() > 0 ? kDuration : 0);
    });
}

void Experiment::setExercise(const Exercise& exercise) {
    exercise_ = exercise;
    hidden_ = exercise.hidesResults;
    setMixture(exercise.mixture);
}

void Experiment::reveal() {
    hidden_ = false;
    changed_.tell();
}

void Experiment::setReaction(const Reaction& reaction) {
    if (exercise_)
        return;
    Mixture mixture = mixture_;
    mixture.reaction = &reaction;
    setMixture(mixture);
}

void Experiment::setInitial(std::size_t reactant, double amount) {
    if (isLocked(reactant))
        return;
    Mixture mixture = mixture_;
    mixture.initial.at(reactant) = kAmount.held(amount);
    setMixture(mixture);
}

std::optional<Mixture> Experiment::balanced() const {
    if (hidden_ || mixture_.limiting() == Limiting::Both)
        return std::nullopt;
    for (const std::size_t changed : {std::size_t{1}, std::size_t{0}}) {
        const double amount =
            mixture_.quotient(1 - changed) * reaction().reactant(changed).coefficient;
        if (isLocked(changed) || amount <= 0 || kAmount.held(amount) != amount)
            continue;
        Mixture mixture = mixture_;
        mixture.initial.at(changed) = amount;
        return mixture;
    }
    return std::nullopt;
}

bool Experiment::canBalance() const {
    return balanced().has_value();
}

void Experiment::balance() {
    if (const auto mixture = balanced())
        setMixture(*mixture);
}

std::u16string describe(const Mixture& mixture) {
    const auto limits = [&](std::size_t which) {
        return u"Réactif limitant\u00A0: " + withArticle(mixture.reaction->reactant(which)) + u'.';
    };
    switch (mixture.limiting()) {
    case Limiting::First:
        return limits(0);
    case Limiting::Second:
        return limits(1);
    case Limiting::Both:
        return u"Mélange stœchiométrique\u00A0: il ne reste aucun réactif.";
    case Limiting::Nothing:
        break;
    }
    return u"Il manque un réactif\u00A0: rien ne réagit.";
}

std::u16string verdictOf(const Experiment& experiment) {
    return experiment.hidesResults() ? u"Réactif limitant\u00A0: à vous de le trouver."
                                     : describe(experiment.mixture());
}

} // namespace reaction
