#pragma once

#include "coursetool/report.h"
#include "markup/picture_source.h"
#include "page/faces/font_book.h"
#include "page/field_view.h"
#include "publish/publish.h"

namespace publish {

/// Publishes a course as a static site in `request.output`. `program` is the program for browsers.
/// Faults and failures are in the report; then the site that was there before is as it was, but for
/// files that nothing leads to.
void publishCourse(const PublishRequest& request, const std::filesystem::path& program,
                   const page::FontBook& fonts, markup::PictureSource& pictures,
                   const page::FieldPictures& fields, coursetool::Report& report);

} // namespace publish
