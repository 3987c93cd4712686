#pragma once

#include "platform/font.h"

#include <QRgb>
#include <QString>

#include <cstddef>
#include <variant>
#include <vector>

namespace platform {

/// The places a page can be drawn on.
enum class SurfaceId { PictureTexte, PictureIllus, Titre, Picture2, Printer };

/// Name of the surface as the control that shows it is called ("PictureTEXTE", "PICTUREILLUS",
/// "titre", "Picture2"), or "printer".
QString surfaceName(SurfaceId id);

// What was drawn, in drawing order. Lengths and positions are twips from the surface's top left
// corner; x and y of a text are the pen before printing (the top of the line, not its foot).

struct TextOperation {
    SurfaceId surface;
    double x, y;
    QString text;
    Font font;
    QRgb ink;
    double width;
};

struct LineOperation {
    SurfaceId surface;
    double x1, y1, x2, y2;
    QRgb ink;
    int lineWidth; ///< pixels
};

enum class FillMode {
    Copy, ///< the ink replaces what was there
    Mask, ///< bitwise AND of ink and what was there: text stays visible through the fill
};

struct FillOperation {
    SurfaceId surface;
    double x, y, width, height;
    QRgb ink;
    FillMode mode;
};

/// The pen went on to another surface.
struct SwitchOperation {
    SurfaceId surface;
};

/// All that was drawn so far on the surface was wiped.
struct ClearOperation {
    SurfaceId surface;
};

/// The page asked for this caption of the main window.
struct CaptionOperation {
    QString text;
};

/// A statement that was abandoned; the page went on with the next one.
struct FailedOperation {
    int line; ///< line of the page source, from 1
    QString directive;
    QString reason; ///< a French sentence for authors
};

using Operation = std::variant<TextOperation, LineOperation, FillOperation, SwitchOperation,
                               ClearOperation, CaptionOperation, FailedOperation>;

/// The drawing of a page as a list of positioned operations. It is made once and played on screen,
/// paper and files, so that all show the same.
class Recording {
public:
    void add(Operation operation) { operations_.push_back(std::move(operation)); }
    void clear() { operations_.clear(); }
    const std::vector<Operation>& operations() const { return operations_; }
    std::size_t size() const { return operations_.size(); }

private:
    std::vector<Operation> operations_;
};

} // namespace platform
