#pragma once

#include "coursetool/course_sheets.h"
#include "publish/drawing_writer.h"
#include "publish/site_links.h"

#include <QJsonObject>

namespace publish {

/// A page as its script hands it over: "titre", "dessin" (SVG), "texte" (HTML), "menus" by the
/// number of their picture, each a list of entries with caption and address, and "legende" (the
/// caption of the window) and "films" (a menu of pages that have one) where the page has them.
QJsonObject pageData(const coursetool::DrawnCoursePage& page, const page::TextMetrics& metrics,
                     const SiteLinks& links, DrawingWriter& drawings);

} // namespace publish
