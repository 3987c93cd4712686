#pragma once

#include "format.h"
#include "markup/directive_table.h"
#include "output/raster/raster_surface.h"
#include "output/svg/svg_file.h"
#include "page/faces/font_book.h"
#include "page/readable_page.h"
#include "page/sheet.h"

#include <QImage>
#include <QPainter>
#include <QString>

#include <string>
#include <vector>

namespace fuzz {

// What the formats that are drawn have in common.

inline const page::FontBook& fonts() {
    static const page::FontBook book;
    return book;
}

/// Page language as a database has it, from a text with plain line ends.
inline QString pageText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
        .replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

/// All directives, and `others`.
inline std::vector<std::string_view> pageWords(std::vector<std::string_view> others) {
    static const std::vector<std::string> directives = [] {
        std::vector<std::string> all;
        for (const markup::Directive& directive : markup::directiveTable())
            all.push_back("##" + directive.keyword.toString().toStdString());
        return all;
    }();
    others.insert(others.end(), directives.begin(), directives.end());
    return others;
}

/// What a drawn page becomes: pixels, a text for who does not see it, a file.
inline void playEverywhere(const page::Recording& recording, const page::Sheet& sheet) {
    static output::RasterSurface raster(page::SurfaceId::PictureTexte, 600, fonts(),
                                        qRgb(255, 255, 255));
    raster.reset();
    raster.play(recording);
    static QImage view(600, 448, QImage::Format_RGB32);
    for (int top = 0; top < raster.drawnHeightPx(); top += view.height()) {
        QPainter painter(&view);
        painter.translate(0, -top);
        raster.paint(painter, view.rect().translated(0, top));
    }
    raster.reset();
    const page::ReadablePage readable(recording, page::SurfaceId::PictureTexte);
    for (const page::ReadablePiece* piece : readable.pieces())
        require(piece->from >= 0 && piece->from + piece->count <= readable.text().size(),
                "a piece stands in the page's text");
    require(!output::svgDocument(sheet, fonts(), {}).isEmpty(), "a sheet makes a document");
}

} // namespace fuzz
