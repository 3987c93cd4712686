#pragma once

#include "viewer/link_widget.h"

#include <QImage>

namespace viewer {

/// An element of `Imagelien`: a symbol of the image list, or a frame with the sign of a link where
/// the list has none. It has no highlight of its own, and text links lose theirs when the pointer
/// comes to it.
class LinkPicture : public LinkWidget {
public:
    LinkPicture(int index, const page::FontBook& fonts, QWidget* parent);

    QSize ringReach() const override { return {3, 3}; }

protected:
    QSizeF extent(const page::LinkOperation& link) const override;
    void draw(QPainter& painter, double ratio) override;

private:
    const QImage& image(QSize pixels);
    void drawPlaceholder(QPainter& painter, const QRect& place, double ratio) const;

    // What was painted last: a symbol may be a large file.
    std::shared_ptr<const page::Picture> decoded_;
    QSize decodedSize_;
    QImage image_;
};

} // namespace viewer
