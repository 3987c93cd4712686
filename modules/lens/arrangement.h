#pragma once

#include "common/quantity.h"

#include <array>

namespace lens {

enum class Kind { Converging, Diverging };

/// What stands on the bench: an upright object AB, its foot A on the axis, a thin lens at O, and a
/// screen. Lengths in centimetres; places count from O in the direction of the light, so that the
/// object's is negative.
struct Arrangement {
    double distance = 30;    ///< from the object to the lens, more than 0
    double height = 2;       ///< AB, more than 0
    double focalLength = 20; ///< without a sign, more than 0
    double screen = 40;      ///< from the lens to the screen behind it, more than 0
    Kind kind = Kind::Converging;

    double object() const { return -distance; }                                            ///< OA
    double focal() const { return kind == Kind::Converging ? focalLength : -focalLength; } ///< f′
    double vergence() const { return 100 / focal(); } ///< C, m⁻¹

    bool operator==(const Arrangement&) const = default;
};

/// Half the width of the lens, cm. Like those of a school's kit.
inline constexpr double kLensRadius = 2.5;

enum class Parameter { Distance, Height, FocalLength, Screen };

using Quantity = common::Quantity<Arrangement, Parameter>;

inline constexpr std::array<Quantity, 4> kQuantities = {{
    {{u"Distance de l’objet", u"d", u"cm", 5, 150, 0.5, 1},
     Parameter::Distance,
     &Arrangement::distance,
     u"distance"},
    {{u"Taille de l’objet", u"h", u"cm", 0.5, 5, 0.1, 1},
     Parameter::Height,
     &Arrangement::height,
     u"taille"},
    {{u"Distance focale", u"f\u200A′", u"cm", 5, 50, 0.5, 1},
     Parameter::FocalLength,
     &Arrangement::focalLength,
     u"focale"},
    {{u"Distance de l’écran", u"", u"cm", 5, 250, 0.2, 1},
     Parameter::Screen,
     &Arrangement::screen,
     u"ecran"},
}};

const Quantity& quantity(Parameter parameter);

/// The image A′B′ that the lens gives of the object, in Gauss's approximation.
class Image {
public:
    explicit Image(const Arrangement& arrangement);

    /// The object stands in the focal plane: its light leaves the lens in parallel rays, and there
    /// is nothing else to be asked of the image.
    bool isAtInfinity() const;

    double vergence() const { return 100 * inverse_; } ///< 1/OA′, m⁻¹; 0 at infinity
    double place() const { return 1 / inverse_; }      ///< OA′, cm; negative before the lens
    double magnification() const { return place() / object_; }        ///< γ; negative upside down
    double height() const { return magnification() * objectHeight_; } ///< A′B′, cm

    bool isReal() const { return inverse_ > 0 && !isAtInfinity(); }
    bool isUpright() const { return !isReal(); }

    /// Width, cm, of the spot of light that a point of the object makes on a screen `screen` cm
    /// behind the lens; 0 where the image is.
    double spot(double screen) const;

private:
    double object_;
    double objectHeight_;
    double inverse_; ///< 1/OA′, cm⁻¹
};

/// A spot of this width, cm, still looks like a point: the image on the screen is sharp.
inline constexpr double kSharpSpot = 0.1;

/// Height, cm, of what the screen shows, sharp or not: the rays through O keep their direction.
double heightOnScreen(const Arrangement& arrangement);

} // namespace lens
