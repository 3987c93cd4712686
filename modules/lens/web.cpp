#include "lens/web.h"

#include "lens/about.h"
#include "lens/controls.h"
#include "lens/extent.h"
#include "lens/laws.h"
#include "lens/listing.h"
#include "lens/rays.h"

#include <cmath>
#include <utility>

namespace lens {

namespace {

/// What the page asks for by number.
enum class Asked { Bench, Rays, Beam };

/// What is pulled in the drawing.
enum class Pulled { Object, Tip, Screen };

class View : public modules::ModelView<Bench, Exercise> {
public:
    explicit View(std::optional<Exercise> exercise) : ModelView(kAbout, std::move(exercise)) {}

    std::vector<common::ReadingGroup> readings() const override { return readingsOf(model()); }
    common::Table table() const override { return measuresOf(model()); }

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
        return {describeScreen(model()), imageInWords(model()), kNoMeasures};
    }

    /// To a place on the axis and a height, cm; as fine as the sliders.
    void pull(int what, double x, double y) override {
        const auto set = [this](Parameter parameter, double value) {
            const double step = quantity(parameter).step;
            model().set(parameter, std::round(value / step) * step);
        };
        const auto pulled = static_cast<Pulled>(what);
        if (pulled == Pulled::Screen)
            set(Parameter::Screen, x);
        else
            set(Parameter::Distance, -x);
        if (pulled == Pulled::Tip)
            set(Parameter::Height, y);
    }

private:
    /// OA, AB, place of the screen, f′, OA′, A′B′; 1 for a lens that is withheld, for an image at
    /// infinity, for a real one, for one that is sharp on the screen, for an object and for a
    /// screen that can be moved; the drawing's ends before, behind and up; half the width of the
    /// lens; height and width of spots on the screen. What is withheld is 0.
    std::vector<double> ofBench() const {
        const Arrangement& arrangement = model().arrangement();
        const Image image = model().image();
        const Extent extent = extentOf(model());
        const bool isKnown = !model().hidesLens();
        const bool isThere = isKnown && !image.isAtInfinity();
        const bool objectMoves =
            !model().isLocked(Parameter::Distance) || !model().isLocked(Parameter::Height);
        return {arrangement.object(),
                arrangement.height,
                arrangement.screen,
                isKnown ? arrangement.focal() : 0,
                isThere ? image.place() : 0,
                isThere ? image.height() : 0,
                double(!isKnown),
                double(isKnown && image.isAtInfinity()),
                double(isThere && image.isReal()),
                double(model().isSharp()),
                double(objectMoves),
                double(!model().isLocked(Parameter::Screen)),
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
        if (model().hidesLens())
            return all;
        const Extent extent = extentOf(model());
        const auto add = [&](const Ray& ray, const std::vector<Segment>& lines, double extension) {
            for (const Segment& line : lines)
                all.insert(all.end(), {double(ray.number), extension, line.from.x, line.from.y,
                                       line.to.x, line.to.y});
        };
        for (const Ray& ray : principalRays(model().arrangement(), -extent.before, extent.behind)) {
            add(ray, ray.light, 0);
            add(ray, ray.extension, 1);
        }
        return all;
    }

    /// Where the light through both rims of the lens is at the end of the drawing.
    std::vector<double> ofBeam() const {
        if (model().hidesLens())
            return {};
        const double end = extentOf(model()).behind;
        return {beamHeight(model().arrangement(), kLensRadius, end),
                beamHeight(model().arrangement(), -kLensRadius, end)};
    }
};

} // namespace

std::unique_ptr<modules::View> openView(std::u16string_view exercise, std::u16string& why) {
    return modules::opened<View>(exercise, why, parseExercise);
}

} // namespace lens
