#pragma once

#include "output/pdf/cairo_faces.h"
#include "output/pdf/cairo_pictures.h"
#include "page/faces/font_book.h"
#include "page/sheet.h"

#include <cairo.h>

#include <set>

namespace output {

/// Draws sheets on a cairo device that keeps text and vectors. Mask fills are multiplied in their
/// place (see multiplyInks()); fills, straight lines and pictures keep to whole pixels of the
/// screen, so that they meet as they do there.
class SheetPlayer {
public:
    SheetPlayer(const page::FontBook& fonts, CairoFaces& faces, CairoPictures& pictures);

    /// Draws with one unit of `cairo` to the twip.
    void play(const page::Sheet& sheet, cairo_t* cairo);

private:
    class Player;

    const page::FontBook& fonts_;
    CairoFaces& faces_;
    CairoPictures& pictures_;
    std::set<cairo_surface_t*> painted_; ///< pictures that the page shows already
    bool lowered_ = false;               ///< which of two heights text is at, see kLowered
};

} // namespace output
