#pragma once

#include "page/picture.h"
#include "page/sheet.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace output {

/// Where a link leads, as an address; empty when it leads nowhere.
using LinkAddress = std::function<QString(const page::LinkArea& link)>;

/// What an SVG document is written for.
struct SvgForm {
    LinkAddress address = {};

    /// Enlarges what a document says its size is.
    double scale = 1;

    // A document that is part of a page of HTML. It has no head of its own and brings no size: what
    // it stands in gives both. Lines of text are elements, so that they are found and copied as
    // such, and links go by the order of their areas ("data-link").
    bool isInPage = false;
    /// Before each identifier, so that several documents can be part of the same page.
    QString idPrefix = {};
    /// The families that a face is drawn with, separated by commas.
    std::function<QString(const QString& face)> families = {};
    /// A drawing as elements of the page, one unit wide and high, so that it sees the page's fonts;
    /// empty when it has to stay a file. Called once for each picture.
    std::function<QByteArray(const page::Picture& picture, const QString& id)> inlined = {};
};

} // namespace output
