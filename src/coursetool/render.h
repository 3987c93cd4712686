#pragma once

#include "coursetool/drawing_request.h"
#include "markup/picture_source.h"
#include "page/faces/font_book.h"
#include "page/field_view.h"

namespace coursetool {

/// Draws pages and questions of an installed course into files, as the shell shows them: a page is
/// its title, its illustration and its column at full height on white paper; a question stands as
/// long as nobody has answered it.
///
/// All: first the pages, then the questions, both in record order. Where each has a file of its own
/// it is called "page-012" or "question-307", with "-2" behind for the second record of the same
/// number, and "page-sans-numero" without one. Links lead to the file, or the place in the PDF,
/// that the shell would go to.
///
/// A bare source, whose lines end in CR LF, becomes a picture of its column alone, down to what was
/// drawn; of the whole page when it drew beside it. A file that ends in ".question" is drawn as a
/// question. Pictures are those that lie beside the file. With a fault in it
/// nothing is written.
///
/// Faults: no course, no page or question of that number, a file that cannot be written.
void render(const RenderRequest& request, const page::FontBook& fonts,
            markup::PictureSource& pictures, const page::FieldPictures& fields, Report& report);

} // namespace coursetool
