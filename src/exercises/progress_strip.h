#pragma once

#include "markup/qb_color.h"

#include <cstdint>
#include <optional>
#include <string>

namespace exercises {

// The progress strip: one band a question, from the top. Heights and positions are in the unit that
// the strip is painted in; "height" is the strip's inner height. A strip of no questions has no
// bands.

/// Fills of a band, from the outside inwards: all of it, a frame one unit inside its top left
/// corner, the middle one unit inside that; and the ink of its caption.
struct BandInks {
    markup::Rgb light;
    markup::Rgb frame;
    markup::Rgb middle;
    markup::Rgb caption;

    bool operator==(const BandInks&) const = default;
};

/// Colours for a question's state: 1 right, -1 wrong, any other not answered.
BandInks bandInks(int state);

/// "Question 7".
std::u16string bandCaption(int question);

/// What a screen reader says of a band: "Question 3, juste".
std::u16string bandName(int question, int state);

/// Where a band begins and ends; two units are left free up to the next one.
struct Band {
    int top;
    int bottom;

    bool operator==(const Band&) const = default;
};

/// The band of a question of `count`, its bounds rounded with halves to the even neighbour. Nothing
/// when it is thinner than a unit, as with more questions than the strip has room for.
std::optional<Band> bandOf(int question, int count, double height);

/// The question that a click at `y` chooses, held between 1 and `count`; a click on the border of
/// two bands chooses the even one.
std::optional<std::int16_t> questionAt(double y, int count, double height);

/// Top of a marker whose middle is the middle of the question's band.
std::optional<double> markerTop(int question, int count, double height, double markerHeight);

} // namespace exercises
