#include "lens/web.h"

#include "lens/extent.h"
#include "lens/laws.h"
#include "lens/listing.h"
#include "lens/rays.h"

#include <cmath>
#include <utility>

namespace lens {

namespace {

using modules::Control;

/// What the page asks for by number.
enum class Asked { Bench, Rays, Beam };

/// What is pulled in the drawing.
enum class Pulled { Object, Tip, Screen };

class View : public modules::View {
public:
    explicit View(std::optional<Exercise> exercise) : exercise_(std::move(exercise)) {
        if (exercise_)
            bench_.setExercise(*exercise_);
    }

    std::vector<Control> controls() override {
        const bool isUnknown = bench_.hidesLens();
        std::vector<Control> all = {modules::heading(u"Objet"), row(Parameter::Distance),
                                    row(Parameter::Height), modules::heading(u"Lentille"), kinds()};
        all.back().isShown = !isUnknown;
        all.push_back(row(Parameter::FocalLength));
        all.back().isShown = !isUnknown;
        if (bench_.arrangement().kind == Kind::Diverging)
            all.back().formula = u"\\text{Distance focale }−f\u200A′";
        all.push_back(modules::note(u"Lentille inconnue\u00A0: à vous de la mesurer."));
        all.back().isShown = isUnknown;
        all.push_back(modules::heading(u"Écran"));
        all.push_back(row(Parameter::Screen));
        all.push_back(modules::button(u"Mettre au point", u"met l’écran là où l’image est nette",
                                      bench_.canFocus(), [this] { bench_.focus(); }));
        all.push_back(modules::button(u"Noter la mesure",
                                      bench_.isSharp() ? u"ajoute une ligne à l’onglet Mesures"
                                                       : u"quand l’image est nette sur l’écran",
                                      bench_.canMeasure(), [this] { bench_.measure(); }));
        all.push_back(modules::button(u"Effacer", u"efface les mesures notées",
                                      !bench_.measures().empty(),
                                      [this] { bench_.forgetMeasures(); }));
        return all;
    }

    std::vector<common::ReadingGroup> readings() const override { return readingsOf(bench_); }
    common::Table table() const override { return measuresOf(bench_); }
    std::vector<common::Law> laws() const override { return lawsOf(bench_); }

    std::vector<double> numbers(int what, int /*which*/) const override {
        switch (static_cast<Asked>(what)) {
        case Asked::Rays:
            return ofRays();
        case Asked::Beam:
            return ofBeam();
        default:
            return ofBench();
        }
    }

    /// What the screen shows, what the image is like, and what to do while there are no measures.
    std::vector<std::u16string> words() const override {
        return {describeScreen(bench_), imageInWords(bench_), kNoMeasures};
    }

    /// To a place on the axis and a height, cm; as fine as the sliders.
    void pull(int what, double x, double y) override {
        const auto set = [this](Parameter parameter, double value) {
            const double step = quantity(parameter).step;
            bench_.set(parameter, std::round(value / step) * step);
        };
        const auto pulled = static_cast<Pulled>(what);
        if (pulled == Pulled::Screen)
            set(Parameter::Screen, x);
        else
            set(Parameter::Distance, -x);
        if (pulled == Pulled::Tip)
            set(Parameter::Height, y);
    }

    const common::Task* task() const override { return exercise_ ? &*exercise_ : nullptr; }
    void reveal() override { bench_.reveal(); }

private:
    Control row(Parameter parameter) {
        const Quantity& which = quantity(parameter);
        return modules::numberControl(
            which, bench_.arrangement().*which.value, !bench_.isLocked(parameter),
            [this, parameter](double value) { bench_.set(parameter, value); });
    }

    Control kinds() {
        return {.kind = Control::Kind::Segments,
                .name = u"Lentille",
                .isEnabled = !bench_.isLocked(Parameter::FocalLength),
                .value = static_cast<double>(bench_.arrangement().kind),
                .choices = {{u"\\text{convergente}"}, {u"\\text{divergente}"}},
                .change = [this](double which) {
                    bench_.setKind(static_cast<Kind>(static_cast<int>(which)));
                }};
    }

    /// OA, AB, place of the screen, f′, OA′, A′B′; 1 for a lens that is withheld, for an image at
    /// infinity, for a real one, for one that is sharp on the screen, for an object and for a
    /// screen that can be moved; the drawing's ends before, behind and up; half the width of the
    /// lens; height and width of spots on the screen. What is withheld is 0.
    std::vector<double> ofBench() const {
        const Arrangement& arrangement = bench_.arrangement();
        const Image image = bench_.image();
        const Extent extent = extentOf(bench_);
        const bool isKnown = !bench_.hidesLens();
        const bool isThere = isKnown && !image.isAtInfinity();
        const bool objectMoves =
            !bench_.isLocked(Parameter::Distance) || !bench_.isLocked(Parameter::Height);
        return {arrangement.object(),
                arrangement.height,
                arrangement.screen,
                isKnown ? arrangement.focal() : 0,
                isThere ? image.place() : 0,
                isThere ? image.height() : 0,
                double(!isKnown),
                double(isKnown && image.isAtInfinity()),
                double(isThere && image.isReal()),
                double(bench_.isSharp()),
                double(objectMoves),
                double(!bench_.isLocked(Parameter::Screen)),
                extent.before,
                extent.behind,
                extent.high,
                kLensRadius,
                heightOnScreen(arrangement),
                image.spot(arrangement.screen)};
    }

    /// Of each line the ray's number, 1 for an extension, and both ends; none of a lens withheld.
    std::vector<double> ofRays() const {
        std::vector<double> all;
        if (bench_.hidesLens())
            return all;
        const Extent extent = extentOf(bench_);
        const auto add = [&](const Ray& ray, const std::vector<Segment>& lines, double extension) {
            for (const Segment& line : lines)
                all.insert(all.end(), {double(ray.number), extension, line.from.x, line.from.y,
                                       line.to.x, line.to.y});
        };
        for (const Ray& ray : principalRays(bench_.arrangement(), -extent.before, extent.behind)) {
            add(ray, ray.light, 0);
            add(ray, ray.extension, 1);
        }
        return all;
    }

    /// Where the light through both rims of the lens is at the end of the drawing.
    std::vector<double> ofBeam() const {
        if (bench_.hidesLens())
            return {};
        const double end = extentOf(bench_).behind;
        return {beamHeight(bench_.arrangement(), kLensRadius, end),
                beamHeight(bench_.arrangement(), -kLensRadius, end)};
    }

    std::optional<Exercise> exercise_;
    Bench bench_;
};

} // namespace

std::unique_ptr<modules::View> openView(std::u16string_view exercise, std::u16string& why) {
    return modules::opened<View>(exercise, why, parseExercise);
}

} // namespace lens
