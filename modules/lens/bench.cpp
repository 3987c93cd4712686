#include "lens/bench.h"

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

QString describe(const Image& image) {
    if (image.isAtInfinity())
        return QStringLiteral("à l’infini\u00A0: les rayons sortent parallèles");
    const double size = std::fabs(image.magnification());
    return QStringLiteral("%1, %2, %3")
        .arg(image.isReal() ? QStringLiteral("réelle") : QStringLiteral("virtuelle"),
             image.isUpright() ? QStringLiteral("droite") : QStringLiteral("renversée"),
             std::fabs(size - 1) < kSameSize ? QStringLiteral("de même taille")
             : size > 1                      ? QStringLiteral("agrandie")
                                             : QStringLiteral("réduite"));
}

QString describeScreen(const Bench& bench) {
    if (bench.isSharp())
        return QStringLiteral("image nette");
    if (!bench.hidesResults() && !bench.image().isReal())
        return QStringLiteral("pas d’image ici");
    return QStringLiteral("image floue");
}

} // namespace lens
