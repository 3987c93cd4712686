#pragma once

#include "page/font.h"
#include "page/picture.h"

#include <QRgb>
#include <QString>

#include <cstddef>
#include <memory>
#include <variant>
#include <vector>

namespace page {

/// The places a page can be drawn on.
enum class SurfaceId { PictureTexte, PictureIllus, Titre, Picture2, Printer };
inline constexpr std::size_t kSurfaces = 5;

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

/// A picture file, or a symbol of the image list.
struct PictureOperation {
    SurfaceId surface;
    double x, y, width, height;
    std::shared_ptr<const Picture> picture;
    QString name; ///< bare file name, or the symbol's key
    bool symbol;
};

/// The arrays of link controls.
enum class LinkControl { Labelien, Imagelien };

/// A link was placed. On screen it is a control that can be clicked; files and paper show its
/// caption or picture. An element that is placed again is no longer where it was before.
struct LinkOperation {
    SurfaceId surface = SurfaceId::PictureTexte;
    LinkControl control = LinkControl::Labelien;
    int index = 0;
    double x = 0, y = 0, width = 0, height = 0;
    QString caption; ///< of labels; lines are separated by CR LF
    QString tag;     ///< the target: a page code, or "FLOTTANT" for a floating menu
    QString tooltip;
    QString key; ///< of pictures, in the image list
    Font font;   ///< of labels
    QRgb ink = 0xff000000;
    std::shared_ptr<const Picture> picture; ///< null for labels, and for a key that is not there

    bool operator==(const LinkOperation&) const = default;
};

/// An entry was added to a floating menu.
struct MenuOperation {
    int menu;
    int entry;
    QString caption;
    QString target;
};

/// The controls of the test window that a question can place.
enum class FieldControl { Option1, Check1, Text1, Labelien, Image1, Icovideo };

/// An answer control, or a link of a question, was placed.
struct FieldOperation {
    SurfaceId surface = SurfaceId::Picture2;
    FieldControl control = FieldControl::Option1;
    int index = 0;
    double x = 0, y = 0, width = 0;
    QString caption; ///< of Labelien
    QString tag;
    QString tooltip;
    Font font; ///< of Labelien
    QRgb ink = 0xff000000;
};

/// The page named its video.
struct VideoOperation {
    QString name;
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

using Operation = std::variant<TextOperation, LineOperation, FillOperation, PictureOperation,
                               LinkOperation, MenuOperation, FieldOperation, VideoOperation,
                               SwitchOperation, ClearOperation, CaptionOperation, FailedOperation>;

/// What leaves ink. Files and paper show nothing else: links and answer controls have become their
/// captions and pictures there.
using DrawnOperation = std::variant<TextOperation, LineOperation, FillOperation, PictureOperation>;

/// Base of a visitor that has nothing to do for these kinds. Visitors name every kind, so that a
/// new one does not compile until each of them has been asked what becomes of it.
template <class... Kinds>
struct PassOver : PassOver<Kinds>... {
    using PassOver<Kinds>::operator()...;
};
template <class Kind>
struct PassOver<Kind> {
    void operator()(const Kind&) const {}
};

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

} // namespace page
