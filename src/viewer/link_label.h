#pragma once

#include "viewer/link_widget.h"

namespace viewer {

/// An element of `Labelien`: a caption of one or more lines. It keeps to the width that the page
/// gave it, also while it is bold under the pointer.
class LinkLabel : public LinkWidget {
public:
    LinkLabel(int index, const page::FontBook& fonts, QWidget* parent);

    /// Lines of text stand close together.
    QSize ringReach() const override { return {4, 3}; }

protected:
    QSizeF extent(const page::LinkOperation& link) const override;
    QMargins overhang(const page::LinkOperation& link) const override;
    void draw(QPainter& painter, double ratio) override;
    void mouseMoveEvent(QMouseEvent* event) override;
};

} // namespace viewer
