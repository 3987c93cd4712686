#pragma once

#include "common/listeners.h"
#include "lens/exercise.h"

#include <vector>

namespace lens {

/// What somebody reads on the bench while the screen shows a sharp image; cm.
struct Measure {
    double object = 0; ///< OA
    double screen = 0; ///< OA′, as far as the eye can tell
    double height = 0; ///< A′B′

    bool operator==(const Measure&) const = default;
};

/// What the windows show: the bench, what an exercise gives or withholds, and the measures taken.
class Bench {
public:
    /// A pupil needs ten; a table that grew for ever would be of no use to anybody.
    static constexpr std::size_t kMostMeasures = 30;

    const Arrangement& arrangement() const { return arrangement_; }
    Image image() const { return Image(arrangement_); }

    /// The given numbers of an exercise, which nothing below changes any more.
    void setExercise(const Exercise& exercise);
    bool isLocked(Parameter parameter) const { return exercise_ && exercise_->isLocked(parameter); }

    /// Numbers of the image, or the lens with all that would tell of it, are withheld.
    bool hidesResults() const { return hidden_ && (exercise_->hidesResults || hidesLens()); }
    bool hidesLens() const { return hidden_ && exercise_->hidesLens; }
    /// After a right answer nothing is.
    void reveal();

    /// These hold the numbers within the sliders' limits, and leave locked ones alone.
    void set(Parameter parameter, double value);
    void setKind(Kind kind);

    /// Whether the screen shows a sharp image.
    bool isSharp() const;
    /// The screen can be put where the image is, and nothing withholds that place.
    bool canFocus() const;
    void focus();

    const std::vector<Measure>& measures() const { return measures_; }
    /// The image is sharp, and the measure is not taken yet.
    bool canMeasure() const;
    void measure();
    void forgetMeasures();

    // What is to be called when something has changed. Whoever asks lives as long as this does.
    using Listener = std::function<void()>;
    void onChanged(Listener show) { changed_.add(std::move(show)); } ///< the bench, so everything
    void onMeasured(Listener show) { measured_.add(std::move(show)); }

private:
    void setArrangement(const Arrangement& arrangement);
    Measure reading() const;

    Arrangement arrangement_;
    std::optional<Exercise> exercise_;
    bool hidden_ = false; ///< what the exercise withholds
    std::vector<Measure> measures_;
    common::Listeners changed_;
    common::Listeners measured_;
};

/// What the image is like: "réelle, renversée, agrandie"; "à l’infini".
std::u16string describe(const Image& image);

/// What the screen shows: "image nette", "image floue".
std::u16string describeScreen(const Bench& bench);

} // namespace lens
