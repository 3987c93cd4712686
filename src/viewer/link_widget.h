#pragma once

#include "look/surface_control.h"
#include "page/faces/font_book.h"
#include "page/recording.h"

#include <QAbstractButton>
#include <QMargins>
#include <QSizeF>

namespace look {
class PictureBox;
}

namespace viewer {

/// A member of an array of link controls: it stands on a picture box and paints on it as if the
/// page had drawn it there. The Tab key reaches it; a click leaves the keyboard where it is. Its
/// contents rectangle is the link itself, around it is room for letters that lean out.
class LinkWidget : public QAbstractButton, public look::SurfaceControl {
public:
    LinkWidget(int index, const page::FontBook& fonts, QWidget* parent);

    int index() const { return index_; }
    /// What it shows; an empty one while it is free.
    const page::LinkOperation& link() const { return link_; }

    /// Shows `link` on `box`. A link of which no part can be seen stays hidden: nobody could click
    /// it, and the keyboard must not lead to it.
    void showLink(const page::LinkOperation& link, look::PictureBox& box);

    /// Hides the control and empties it.
    void freeLink();

    void drawOn(QPainter& painter, double ratio) override { draw(painter, ratio); }

    /// How far from the link the outer edge of its focus ring is, in pixels.
    virtual QSize ringReach() const = 0;

protected:
    /// Width and height of `link`, in twips.
    virtual QSizeF extent(const page::LinkOperation& link) const = 0;
    /// How far the drawing may lean out of it to each side, in pixels.
    virtual QMargins overhang(const page::LinkOperation&) const { return {}; }
    /// Draws link() in device pixels from the corner of the surface; `ratio` of them make a logical
    /// one.
    virtual void draw(QPainter& painter, double ratio) = 0;

    const page::FontBook& fonts() const { return fonts_; }

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange();

    const int index_;
    const page::FontBook& fonts_;
    look::PictureBox* box_ = nullptr;
    page::LinkOperation link_;
};

} // namespace viewer
