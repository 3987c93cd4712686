#pragma once

#include "text/bounded_array.h"

#include <QPointF>
#include <QRgb>
#include <QString>

#include <cstdint>

namespace markup {

/// Edges of a table row whose colours a page can choose; indices of `couleursBord`.
enum BorderEdge { TopEdge = 1, BottomEdge, LeftEdge, InnerEdge, RightEdge };

/// What the drawing of a page depends on, beside the surface's own pen, font, ink and line width.
/// There is one for the whole program: it outlives a page, whether that was a course page, a
/// question or one on paper, and only what `initecran` resets starts anew. Lengths are twips.
struct DrawingState {
    std::int16_t alignement = 0; ///< 0 left, 1 centre, 2 right
    std::int16_t margeGauche = 0;
    std::int16_t margeDroite = 0;
    float interligne = 1;
    std::int16_t decalageUnique = 0; ///< shift of the next text line only
    std::int16_t reliefDecalage = 0; ///< pixels; 0 draws no shadow
    std::int16_t reliefCouleur = 0;  ///< index of the 16-colour palette
    bool dansTableau = false;
    text::BoundedArray<QRgb, TopEdge, RightEdge> couleursBord;
    QString lienEnAttente;         ///< first line of the next link's caption, with its line end
    std::int16_t largeurCadre = 0; ///< width of the next frame; 0: the whole column

    // Nothing resets these: a page that ends a fraction, a root or a row which it never began, or
    // adds to a menu that it has not, goes on from the last one drawn, meant so.
    std::int16_t fracDebutX = 0;      ///< where the numerator began
    std::int16_t fracFinX = 0;        ///< right end of the longer part of the fraction
    QPointF debutRacine;              ///< pen at the start of the square root
    std::int32_t hautRangee = 0;      ///< top of the table row
    std::int32_t basRangee = 0;       ///< lowest pen in the row's cells so far
    std::int16_t colonneCourante = 0; ///< number of the last cell opened
    text::BoundedArray<std::int16_t, 0, 30> bordsColonne; ///< left edge of each cell
    std::int16_t menuCourant = 0; ///< the floating menu that entries are added to
};

/// Where the left edge of something `width` wide stands between the margins: in the middle, at the
/// right, or, aligned to the left, at `otherwise`.
inline double alignedX(const DrawingState& state, double width, double otherwise) {
    if (state.alignement == 1)
        return (state.margeGauche + state.margeDroite - width) / 2;
    return state.alignement == 2 ? state.margeDroite - width : otherwise;
}

} // namespace markup
