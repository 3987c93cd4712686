#pragma once

#include "page/picture.h"

#include <QByteArray>
#include <QSize>

#include <cairo.h>

#include <map>
#include <memory>
#include <set>

namespace output {

struct CairoSurfaceRelease {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoSurfaceRelease>;

/// Pictures as a cairo document takes them: JPEG files as they are, others pixel by pixel; each is
/// handed over once and only named afterwards. Drawings (SVG) become pixels, fine enough for print.
class CairoPictures {
public:
    /// Most bytes of pixels that one page holds until it is written: two photographs of the largest
    /// size. Pictures beyond it have as many pixels as the screen shows of them, and are left out
    /// where even those are too many.
    static constexpr qint64 kMostPageBytes = 256 << 20;

    explicit CairoPictures(qint64 mostPageBytes = kMostPageBytes) : mostPageBytes_(mostPageBytes) {}

    /// What shows `picture` when it is painted and stretched to `drawn` (logical pixels), whatever
    /// size it has itself; null when the picture cannot be decoded. It lives until the end of the
    /// page.
    cairo_surface_t* surface(const std::shared_ptr<const page::Picture>& picture, QSize drawn);

    /// What the page showed is in the document now; its pixels are let go of.
    void endPage();

private:
    struct Known {
        std::weak_ptr<const page::Picture> picture;
        QByteArray id;
    };

    /// `wanted`, or fewer where the page has not so much room.
    QSize affordable(QSize wanted, QSize drawn) const;
    QByteArray idOf(const std::shared_ptr<const page::Picture>& picture, QSize pixels);

    qint64 mostPageBytes_;
    qint64 pageBytes_ = 0;
    std::map<const page::Picture*, Known> known_;
    std::map<QByteArray, CairoSurface> page_;
    std::set<QByteArray> written_;
    int nameless_ = 0;
};

} // namespace output
