#pragma once

#include "authoring/positions.h"
#include "authoring/ruler.h"
#include "authoring/writer.h"

#include <functional>

namespace authoring {

/// Where text stands on the surface at hand, in pixels from its left edge.
struct Column {
    int left = 0;
    int right = 0;
    int penLeft = 0; ///< where the pen stands after "¶"

    int width() const { return right - left; }
    Column indented(int pixels) const { return {left + pixels, right, penLeft}; }
};

enum class Placed { Left, Centre, Right };

/// A line of a text: what is printed, and the room that it wants.
struct TextLine {
    std::vector<Piece> pieces = {};
    double width = 0; ///< twips
    int rise = 0;     ///< pixels above the line
    int drop = 0;     ///< pixels below it
    std::size_t at = 0;
};

/// Breaks a text, composed already, into lines no wider than `width` pixels. What is wider by
/// itself is a fault.
std::vector<TextLine> breakLines(const InlineText& text, int width, const Ruler& ruler,
                                 Faults& faults);

/// Widths of a text in twips: on one line, and of the widest part that no line break parts.
struct Extent {
    double whole = 0;
    double widest = 0;
};
Extent extentOf(const InlineText& text, const Ruler& ruler);

/// What stands before the first line of a text: a bullet, a number, a symbol, a choice.
struct Label {
    int x = 0; ///< pixels
    Box box = {};
};

/// Writes lines into the column, each ended. `style` is the one between texts.
void writeLines(Writer& writer, const std::vector<TextLine>& lines, const Column& column,
                Placed placed, const Style& style, const Label* label = nullptr);

} // namespace authoring
