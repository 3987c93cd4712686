#pragma once

#include "platform/qt/font_book.h"
#include "platform/qt/operation_painter.h"
#include "platform/sheet.h"

#include <QFont>
#include <QPainter>

#include <map>
#include <vector>

namespace platform {

/// Draws sheets with a painter that prints: text as text, lines as lines, drawings in pixels as
/// fine as print. Mask fills are shown as `withoutMasks` says.
class PaperPainter {
public:
    /// The painter need not be active yet.
    PaperPainter(QPainter& painter, const FontBook& fonts)
        : painter_(painter), fonts_(fonts), shapes_(painter, fonts, 1) {}

    /// One unit of the painter is a twip of the sheet, its origin the sheet's corner.
    void draw(const Sheet& sheet);

private:
    void draw(const TextOperation& text);
    void draw(const LineOperation& line) { drawInPixels(line); }
    void draw(const FillOperation& fill) { drawInPixels(fill); }
    void draw(const PictureOperation& picture);
    template <class Shape>
    void drawInPixels(const Shape& shape);

    /// A face of the list that stands in for the one asked for.
    struct Face {
        QFont font;                                             ///< a unit of its size is a twip
        QRawFont raw;                                           ///< tells its glyphs
        std::map<std::pair<quint32, char32_t>, char32_t> codes; ///< what printed() found
    };
    Face& face(const Font& font, int stage);

    /// The character that prints a glyph in its face, 0 when none does.
    static char32_t printed(Face& face, const Font& font, const FontBook::PlacedGlyph& glyph);
    void drawGlyph(const FontBook::PlacedGlyph& glyph, const Face& face, const QPointF& foot);

    QPainter& painter_;
    const FontBook& fonts_;
    OperationPainter shapes_;
    std::vector<std::pair<std::pair<Font, int>, Face>> faces_;
};

} // namespace platform
