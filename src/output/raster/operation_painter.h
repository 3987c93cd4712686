#pragma once

#include "page/faces/font_book.h"
#include "page/recording.h"
#include "page/twips.h"

#include <QPainter>

#include <optional>

namespace output {

/// Positions beyond this many logical pixels are outside any picture.
inline constexpr double kFarPx = 1e6;

/// Draws operations with a painter whose units are device pixels and whose origin is the top left
/// corner of the surface. Lines and fills keep to whole pixels, so that they are crisp at any
/// density.
class OperationPainter {
public:
    /// `ratio`: device pixels to a logical one. The painter need not be active yet.
    OperationPainter(QPainter& painter, const page::FontBook& fonts, double ratio)
        : painter_(painter), fonts_(fonts), ratio_(ratio) {}

    /// From where to where something reaches, in twips.
    struct Span {
        double top, bottom;
    };

    /// How far an operation reaches; nothing when no part of it can show.
    std::optional<Span> span(const page::TextOperation& text) const;
    std::optional<Span> span(const page::LineOperation& line) const;
    std::optional<Span> span(const page::FillOperation& fill) const;
    std::optional<Span> span(const page::PictureOperation& picture) const;

    /// The rows that an operation may ink, no fewer than it does: letters lean out of their box
    /// above and below. Nothing where span() has nothing.
    template <class Operation>
    std::optional<Span> inkSpan(const Operation& operation) const {
        std::optional<Span> ink = span(operation);
        if (!ink)
            return ink;
        const double grace = overhang(operation);
        return Span{ink->top - grace, ink->bottom + grace};
    }

    /// Whether no letter of a text leans out of `area`, in device pixels; false in doubt.
    bool staysWithin(const page::TextOperation& text, const QRectF& area) const;

    /// Draws what has a span.
    void draw(const page::TextOperation& text);
    void draw(const page::LineOperation& line);
    void draw(const page::FillOperation& fill);
    void draw(const page::PictureOperation& picture);

private:
    // In twips. Smooth edges shade a pixel more.
    double overhang(const page::TextOperation& text) const {
        return fonts_.height(text.font) + 2 * page::kTwipsPerPixel;
    }
    static double overhang(const page::LineOperation&) { return 2 * page::kTwipsPerPixel; }
    static double overhang(const page::FillOperation&) { return 0; }
    static double overhang(const page::PictureOperation&) { return 0; }

    double toDevice(double twips) const;
    int pixel(double twips) const;
    /// The right or lower edge of an area, held where a painter can still reckon with it.
    int farEdge(double twips) const;

    void drawRun(const page::FontBook::Run& run, const QRawFont& font, double x, double foot);
    void underline(const page::TextOperation& text, double x, double foot);
    void straightLine(const page::LineOperation& line, int width);

    QPainter& painter_;
    const page::FontBook& fonts_;
    double ratio_;
};

} // namespace output
