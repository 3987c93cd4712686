#pragma once

#include "page/text_piece.h"

#include <vector>

namespace page {

/// Knows the signs of formulas, and the frames of tables, by the lines they are drawn with, and
/// puts pieces together accordingly: the numerator, the denominator and the bar between them are
/// one piece afterwards. It is told what a page draws on one surface, in drawing order.
class FormulaShapes {
public:
    /// A box with borders: a row of a table, or a frame around text.
    struct Row {
        QRectF box;                ///< twips
        std::vector<double> edges; ///< of its cells, from left to right, box included; 2 or more
    };

    void addText(const TextOperation& text);
    void addCaptions(const std::vector<TextOperation>& lines, const LinkOperation& link);
    void addLine(const LineOperation& line);
    /// Something else was drawn: the next line begins another sign.
    void addOther() { strokes_.clear(); }
    /// Forgets what was drawn; captions stay.
    void wipe();

    const TextPieces& pieces() const { return pieces_; }
    const std::vector<Row>& rows() const { return rows_; }

private:
    using Stroke = LineOperation;

    bool endsRow();
    bool endsRoot();
    bool endsArrow();
    bool endsTallSign();
    bool endsFraction();
    bool endsMark();
    /// Takes the last `count` pieces away and puts one that stands for them in their place; `line`
    /// is where text goes on beside it.
    TextPiece& combine(std::size_t count, double line);
    /// How many of the last pieces lie between two positions, near the height `middle`, and can be
    /// the two sides of a bar.
    std::size_t piecesWithin(double left, double right, double middle, double bar) const;

    TextPieces pieces_;
    std::vector<Row> rows_;
    std::vector<Stroke> strokes_; ///< drawn one after the other, with nothing between
};

} // namespace page
