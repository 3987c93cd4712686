#pragma once

#include "coursetool/report.h"
#include "markup/picture_source.h"
#include "page/faces/font_book.h"
#include "page/field_view.h"
#include "publish/publish.h"

namespace publish {

/// The programs for browsers.
struct BrowserPrograms {
    std::filesystem::path course;      ///< calculator, tests and search
    std::filesystem::path simulations; ///< the modules
};

/// Publishes a course as a static site in `request.output`.
/// Faults and failures are in the report; then the site that was there before is as it was, but for
/// files that nothing leads to.
void publishCourse(const PublishRequest& request, const BrowserPrograms& programs,
                   const page::FontBook& fonts, markup::PictureSource& pictures,
                   const page::FieldPictures& fields, coursetool::Report& report);

} // namespace publish
