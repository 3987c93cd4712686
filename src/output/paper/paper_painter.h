#pragma once

#include "output/raster/operation_painter.h"
#include "page/faces/font_book.h"
#include "page/sheet.h"

#include <QFont>
#include <QPainter>

#include <map>
#include <vector>

namespace output {

/// Draws sheets with a painter that prints: text as text, lines as lines, drawings in pixels as
/// fine as print. Mask fills are shown as `withoutMasks` says.
class PaperPainter {
public:
    /// The painter need not be active yet.
    PaperPainter(QPainter& painter, const page::FontBook& fonts)
        : painter_(painter), fonts_(fonts), shapes_(painter, fonts, 1) {}

    /// One unit of the painter is a twip of the sheet, its origin the sheet's corner.
    void draw(const page::Sheet& sheet);

private:
    void draw(const page::TextOperation& text);
    void draw(const page::LineOperation& line) { drawInPixels(line); }
    void draw(const page::FillOperation& fill) { drawInPixels(fill); }
    void draw(const page::PictureOperation& picture);
    template <class Shape>
    void drawInPixels(const Shape& shape);

    /// A face of the list that stands in for the one asked for.
    struct PrintingFace {
        QFont font;                                             ///< a unit of its size is a twip
        QRawFont raw;                                           ///< tells its glyphs
        std::map<std::pair<quint32, char32_t>, char32_t> codes; ///< what printed() found
    };
    PrintingFace& face(const page::Font& font, int fallback);

    /// The character that prints a glyph in its face, 0 when none does.
    static char32_t printed(PrintingFace& face, const page::Font& font,
                            const page::FontBook::PlacedGlyph& glyph);
    void drawGlyph(const page::FontBook::PlacedGlyph& glyph, const PrintingFace& face,
                   const QPointF& foot);

    QPainter& painter_;
    const page::FontBook& fonts_;
    OperationPainter shapes_;
    std::vector<std::pair<std::pair<page::Font, int>, PrintingFace>> faces_;
};

} // namespace output
