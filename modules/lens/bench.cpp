#include "lens/bench.h"

#include "common/words.h"

#include <algorithm>
#include <cmath>

namespace lens {

namespace {

/// As large as the object, to the eye.
constexpr double kSameSize = 0.005;

} // namespace

void Bench::setArrangement(const Arrangement& arrangement) {
    if (arrangement == arrangement_)
        return;
    arrangement_ = arrangement;
    changed_.tell();
}

void Bench::setExercise(const Exercise& exercise) {
    exercise_ = exercise;
    hidden_ = true;
    setArrangement(exercise.arrangement);
}

void Bench::reveal() {
    hidden_ = false;
    changed_.tell();
}

void Bench::set(Parameter parameter, double value) {
    if (isLocked(parameter))
        return;
    const Quantity& which = quantity(parameter);
    Arrangement arrangement = arrangement_;
    arrangement.*which.value = which.held(value);
    setArrangement(arrangement);
}

void Bench::setKind(Kind kind) {
    if (isLocked(Parameter::FocalLength))
        return;
    Arrangement arrangement = arrangement_;
    arrangement.kind = kind;
    setArrangement(arrangement);
}

bool Bench::isSharp() const {
    return image().isReal() && image().spot(arrangement_.screen) <= kSharpSpot;
}

bool Bench::canFocus() const {
    const Quantity& screen = quantity(Parameter::Screen);
    const Image now = image();
    return !hidesResults() && !isLocked(Parameter::Screen) && now.isReal() &&
           screen.held(now.place()) == now.place();
}

void Bench::focus() {
    if (canFocus())
        set(Parameter::Screen, std::round(image().place() * 10) / 10); // as fine as the field shows
}

Measure Bench::reading() const {
    return {arrangement_.object(), arrangement_.screen, heightOnScreen(arrangement_)};
}

bool Bench::canMeasure() const {
    return isSharp() && measures_.size() < kMostMeasures &&
           std::find(measures_.begin(), measures_.end(), reading()) == measures_.end();
}

void Bench::measure() {
    if (!canMeasure())
        return;
    measures_.push_back(reading());
    measured_.tell();
}

void Bench::forgetMeasures() {
    measures_.clear();
    measured_.tell();
}

std::u16string describe(const Image& image) {
    if (image.isAtInfinity())
        return u"à l’infini\u00A0: les rayons sortent parallèles";
    const double size = std::fabs(image.magnification());
    return common::filled(u"%1, %2, %3", {image.isReal() ? u"réelle" : u"virtuelle",
                                          image.isUpright() ? u"droite" : u"renversée",
                                          std::fabs(size - 1) < kSameSize ? u"de même taille"
                                          : size > 1                      ? u"agrandie"
                                                                          : u"réduite"});
}

std::u16string describeScreen(const Bench& bench) {
    if (bench.isSharp())
        return u"image nette";
    if (!bench.hidesResults() && !bench.image().isReal())
        return u"pas d’image ici";
    return u"image floue";
}

} // namespace lens
