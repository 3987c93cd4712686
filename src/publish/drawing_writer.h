#pragma once

#include "page/faces/font_book.h"
#include "page/picture.h"
#include "page/sheet.h"
#include "publish/site_links.h"
#include "publish/web_faces.h"

#include <QByteArray>
#include <QHash>

namespace publish {

/// Writes sheets as drawings that stand in a page of HTML, and takes note of the letters in them.
class DrawingWriter {
public:
    DrawingWriter(const page::FontBook& fonts, WebFaces& faces) : fonts_(fonts), faces_(faces) {}

    /// `idPrefix`: letters and digits; no two drawings that are shown together have the same.
    QString write(const page::Sheet& sheet, const QString& idPrefix,
                  const std::function<QString(const page::LinkArea&)>& address);

private:
    struct Inlined {
        QByteArray id; ///< in the place of that of a page
        QByteArray drawing;
    };

    QByteArray inlined(const page::Picture& picture, const QString& id);

    const page::FontBook& fonts_;
    WebFaces& faces_;
    QHash<QByteArray, Inlined> inlined_; ///< by what the file holds: pages share their drawings
};

} // namespace publish
