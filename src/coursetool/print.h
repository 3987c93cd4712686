#pragma once

#include "coursetool/drawing_request.h"
#include "markup/picture_source.h"
#include "page/faces/font_book.h"

namespace coursetool {

/// Prints into a PDF file, on A4 paper, what the print button prints on a page of an installed
/// course: all pages of its range, each with its footer.
///
/// Faults: no course, no page of that number, a range without pages, a file that cannot be written.
void print(const PrintRequest& request, const page::FontBook& fonts,
           markup::PictureSource& pictures, Report& report);

} // namespace coursetool
