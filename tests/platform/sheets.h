#pragma once

#include "output/raster/sheet_raster.h"
#include "page/faces/font_book.h"
#include "page/sheet.h"
#include "page/surface.h"
#include "support/fake_pictures.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

/// Largest difference of a channel between two pictures; 255 when their sizes differ.
inline int difference(const QImage& a, const QImage& b) {
    if (a.size() != b.size())
        return 255;
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            most = std::max({most, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                             std::abs(qBlue(p) - qBlue(q))});
        }
    return most;
}

/// A sheet to draw on: one surface of 300 x 200 pixels with a margin of 10.
struct SheetCase {
    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{page::SurfaceId::PictureTexte, 4500, fonts, recording};

    page::Sheet sheet(const page::FieldPictures& fields = {}) const {
        page::Sheet sheet{};
        sheet.width = 4800;
        sheet.height = 3300;
        sheet.title = QStringLiteral("Un <titre> & \"λ\"");
        sheet.surfaces = {{page::SurfaceId::PictureTexte, 150, 150, 4500, 3000}};
        page::putOnSheet(recording, fonts, sheet, fields);
        return sheet;
    }

    void printAt(double x, double y, const QString& text) {
        surface.setPenX(x);
        surface.setPenY(y);
        surface.print(text);
    }

    /// The whole sheet as pixels.
    QImage raster(const page::Sheet& drawn, double scale = 1) const {
        output::SheetRaster raster(fonts, scale);
        QImage whole(raster.size(drawn), QImage::Format_RGB32);
        QPainter painter(&whole);
        for (int top = 0; top < whole.height(); top += raster.bandRows(drawn))
            painter.drawImage(0, top, raster.band(drawn, top));
        return whole;
    }
};
