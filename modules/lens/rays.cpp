#include "lens/rays.h"

#include <algorithm>
#include <cmath>

namespace lens {

namespace {

/// Of the ray through F, to the axis; a steeper one leaves every drawing.
constexpr double kSteepest = 1e6;

/// Puts together the rays of one arrangement.
class Tracer {
public:
    Tracer(const Arrangement& arrangement, double left, double right)
        : tip_{arrangement.object(), arrangement.height}, focal_(arrangement.focal()),
          image_(arrangement), left_(left), right_(right) {}

    Ray throughCentre() const { return bent(1, 0, tip_.y / tip_.x); }

    Ray parallel() const {
        Ray ray = bent(2, tip_.y, -tip_.y / focal_);
        // A diverging lens spreads the rays as if they came from F′, which is beyond B′.
        if (focal_ < 0)
            extend(ray, {0, tip_.y}, {focal_, 0});
        return ray;
    }

    bool hasThird() const { return std::fabs(slopeToFocus()) < kSteepest; }

    Ray throughFocus() const {
        const Point focus{-focal_, 0};
        const double height = tip_.y - slopeToFocus() * tip_.x;
        Ray ray = bent(3, height, 0);
        if (focal_ < 0)
            ray.extension.push_back({{0, height}, focus}); // towards F, behind the lens
        else if (tip_.x > focus.x)
            extend(ray, tip_, focus); // as if it came from F
        return ray;
    }

private:
    double slopeToFocus() const { return tip_.y / (tip_.x + focal_); }

    /// From B to the lens at `height`, and on with another slope.
    Ray bent(int number, double height, double slope) const {
        const Point atLens{0, height};
        Ray ray{number, {{tip_, atLens}, {atLens, {right_, height + slope * right_}}}, {}};
        if (image_.isReal() || image_.isAtInfinity())
            return ray;
        // Behind the lens the rays part: they seem to come from B′.
        const Point image{image_.place(), image_.height()};
        const bool liesOnLight = number == 1 && image.x > tip_.x;
        if (!liesOnLight)
            extend(ray, number == 1 ? tip_ : atLens, image);
        return ray;
    }

    void extend(Ray& ray, Point from, Point to) const {
        if (to.x < left_) {
            const double share = (left_ - from.x) / (to.x - from.x);
            const double part = std::max(0.0, share);
            to = {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
        }
        ray.extension.push_back({from, to});
    }

    Point tip_;
    double focal_;
    Image image_;
    double left_;
    double right_;
};

} // namespace

std::vector<Ray> principalRays(const Arrangement& arrangement, double left, double right) {
    const Tracer tracer(arrangement, left, right);
    std::vector<Ray> rays = {tracer.throughCentre(), tracer.parallel()};
    if (tracer.hasThird())
        rays.push_back(tracer.throughFocus());
    return rays;
}

} // namespace lens
