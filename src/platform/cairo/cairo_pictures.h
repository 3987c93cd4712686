#pragma once

#include "platform/picture.h"

#include <QByteArray>
#include <QSize>

#include <cairo.h>

#include <map>
#include <memory>
#include <set>

namespace platform {

struct CairoSurfaceRelease {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoSurfaceRelease>;

/// Pictures as a cairo document takes them: JPEG files as they are, others pixel by pixel; each is
/// handed over once and only named afterwards. Drawings (SVG) become pixels, fine enough for print.
class CairoPictures {
public:
    /// What shows `picture` when it is painted and stretched to `drawn` (logical pixels), whatever
    /// size it has itself; null when the picture cannot be decoded. It lives until the end of the
    /// page.
    cairo_surface_t* surface(const std::shared_ptr<const Picture>& picture, QSize drawn);

    /// What the page showed is in the document now; its pixels are let go of.
    void endPage();

private:
    struct Known {
        std::weak_ptr<const Picture> picture;
        QByteArray id;
    };

    const QByteArray& idOf(const std::shared_ptr<const Picture>& picture);

    std::map<const Picture*, Known> known_;
    std::map<QByteArray, CairoSurface> page_;
    std::set<QByteArray> written_;
    int nameless_ = 0;
};

} // namespace platform
