#pragma once

#include "markup/draw_page.h"
#include "page/faces/font_book.h"

namespace bench {

/// Draws one page after the other.
class Page {
public:
    explicit Page(markup::PictureSource& pictures) : pictures_(pictures) {}

    void draw(const QString& source, const QString& title = {}) {
        markup::drawPage({source, markup::DrawnAs::CoursePage, title}, {state_, pictures_, fonts},
                         drawn);
    }

    page::FontBook fonts;
    markup::DrawnPage drawn;

private:
    markup::PictureSource& pictures_;
    markup::DrawingState state_;
};

} // namespace bench
