#pragma once

#include "common/quantity.h"

#include <array>
#include <optional>
#include <vector>

namespace projectile {

/// How the air acts on the projectile.
enum class Drag {
    None,
    Linear,    ///< f = k v: slow or very small things in a viscous fluid (Stokes)
    Quadratic, ///< f = ½ ρ Cx S v²: balls, stones, shells (Newton, Rayleigh)
};

/// Everything that decides a throw, in SI units but for the angle.
struct Launch {
    double speed = 20;              ///< m/s, 0 and more
    double angle = 45;              ///< degrees above the horizontal, -90 to 90
    double height = 0;              ///< of the start above the ground, m, 0 and more
    double gravity = 9.81;          ///< m/s², more than 0
    double mass = 0.6;              ///< kg, more than 0
    double diameter = 0.24;         ///< m
    double linearCoefficient = 0.1; ///< k, kg/s
    double airDensity = 1.225;      ///< ρ, kg/m³
    Drag drag = Drag::None;

    bool operator==(const Launch&) const = default;
};

/// What a launch's numbers are called, and where their sliders end.
enum class Parameter { Speed, Angle, Height, Gravity, Mass, Diameter, LinearCoefficient };

using Quantity = common::Quantity<Launch, Parameter>;

inline constexpr std::array<Quantity, 7> kQuantities = {{
    {{u"Vitesse initiale", u"v_0", u"m/s", 0, 60, 0.5, 2},
     Parameter::Speed,
     &Launch::speed,
     u"vitesse"},
    {{u"Angle de lancement", u"α", u"°", -45, 90, 1, 1},
     Parameter::Angle,
     &Launch::angle,
     u"angle"},
    {{u"Hauteur de départ", u"h", u"m", 0, 100, 0.5, 2},
     Parameter::Height,
     &Launch::height,
     u"hauteur"},
    {{u"Pesanteur", u"g", u"m/s²", 0.5, 30, 0.1, 2},
     Parameter::Gravity,
     &Launch::gravity,
     u"pesanteur"},
    {{u"Masse", u"m", u"kg", 0.01, 10, 0.05, 3, true}, Parameter::Mass, &Launch::mass, u"masse"},
    {{u"Diamètre", u"d", u"m", 0.01, 0.5, 0.01, 3, true},
     Parameter::Diameter,
     &Launch::diameter,
     u"diametre"},
    {{u"Coefficient", u"k", u"kg/s", 0, 0.2, 0.005, 3},
     Parameter::LinearCoefficient,
     &Launch::linearCoefficient,
     u"coefficient"},
}};

const Quantity& quantity(Parameter parameter);

/// Where one throws: gravity and air at the ground.
struct World {
    const char16_t* name;
    double gravity;    ///< m/s²
    double airDensity; ///< kg/m³
};

/// Gravity as the course gives it. Air: International Standard Atmosphere at sea level (ISO 2533)
/// for the Earth; planetary fact sheets of NASA's space science data centre for the others, Jupiter
/// where its pressure is 1 bar. The Moon has none worth the name.
inline constexpr std::array<World, 4> kWorlds = {{
    {u"Terre", 9.81, 1.225},
    {u"Lune", 1.62, 0},
    {u"Mars", 3.71, 0.020},
    {u"Jupiter", 24.8, 0.16},
}};

/// The world with the gravity and air of `launch`; absent when somebody chose their own gravity.
std::optional<World> worldOf(const Launch& launch);

/// One thing that tells a launch from others: a symbol (a formula) with its value and unit, or,
/// when there is no symbol, words.
struct Distinction {
    const char16_t* symbol = nullptr;
    double value = 0;
    const char16_t* unit = u"";
    const char16_t* words = u"";
};

/// What tells a launch from others: "v₀ = 20 m/s, α = 45°, h = 2 m, g = 5 m/s², sans air". What it
/// shares with most (no height, on the Earth, no drag) is left out.
std::vector<Distinction> distinctions(const Launch& launch);

} // namespace projectile
