#pragma once

#include "look/keeps_colours.h"
#include "output/raster/raster_surface.h"
#include "page/faces/font_book.h"
#include "page/readable_page.h"
#include "page/recording.h"

#include <QPointer>
#include <QRectF>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace look {

/// Shows what a recording has on one surface, at the density of the screen; screen readers get the
/// text that stands there.
class PictureBox : public QWidget, public KeepsColours {
public:
    /// `widthPx` is the width to draw on; the control itself may be larger, see setInset().
    PictureBox(page::SurfaceId id, int widthPx, QRgb ground, const page::FontBook& fonts,
               const page::Recording& recording, QWidget* parent);
    ~PictureBox() override;

    page::SurfaceId surfaceId() const { return id_; }

    /// Leaves a border of `pixels` around the drawing, for a fine rule. While nothing is drawn the
    /// control shows neither, but the window below.
    void setInset(int pixels);

    /// Says that the control is given the height of its page.
    void setFollowsPage() { followsPage_ = true; }

    /// Says how far down controls stand on the surface, in its pixels: they belong to the page as
    /// what is drawn does. 0 when there are none.
    void setControlsFoot(int pixels) { controlsFoot_ = pixels; }

    /// The part of the control where something on the surface shows, at the height the control will
    /// have for the page as it stands.
    QRect shownArea() const;

    /// Moves the painter of a control that stands at `place` on this one to the top left corner of
    /// the surface, and to a whole device pixel: where a screen has one and a half pixels to a
    /// logical one, a scrolled page would be blurred otherwise.
    void moveToSurface(QPainter& painter, QPoint place = {}) const;

    /// Logical pixels between the corners of the control and of the surface.
    int inset() const { return inset_; }

    /// Wipes the picture, for a new page. The recording must have been emptied before.
    void empty();

    /// Gives the page its height, in pixels from 0 to page::kMaxSurfaceHeightPx; with 0 it is as
    /// tall as what stands on it.
    void setPageHeightPx(double pixels) { heightPx_ = pixels; }

    /// Shows what was drawn up to now; it appears at the next repaint.
    void showDrawing();

    /// Words that were found, in logical pixels of the surface.
    struct Marks {
        std::vector<QRectF> others;
        QRectF current; ///< null for none
    };
    /// Shows marks over the drawing, below the links, until empty() or the next call. They belong
    /// to the window alone: no recording and no paper has them.
    void setMarks(Marks marks);

    /// Shows text as selected, given in logical pixels of the surface; as marks otherwise.
    void setSelection(std::vector<QRectF> areas);

    /// Shows what of the page is being read aloud, in logical pixels of the surface; null for
    /// nothing. As marks otherwise.
    void setSpoken(const QRectF& area);

    /// The control that shows paintMargin() around this one, and goes with it.
    void setRim(QWidget* rim) { rim_ = rim; }
    /// Has it painted anew.
    void updateMargin();
    /// Draws what leans out of the surface, as tall as the control is. `painter` is as for
    /// RasterSurface::paintMargin(); `exposed` is what shows, in pixels of the control.
    void paintMargin(QPainter& painter, const QRect& exposed);

    /// Whether nothing was drawn, as far as it was shown, and no controls stand there.
    bool isBlank() const { return raster_.isBlank() && controlsFoot_ == 0; }

    /// Height of the page on it, in pixels.
    int pageHeightPx() const;

    /// What was drawn when showDrawing() was called last, as a document; until the next drawing.
    const page::ReadablePage& readablePage() const;
    /// Its text.
    QString readableText() const { return readablePage().text(); }
    /// Counts the drawings: what was read of one that is gone is gone too.
    int drawing() const { return drawing_; }

    /// What of the page's pictures has its colours for their own sake; symbols are drawn in the
    /// page's inks.
    QRegion keptArea() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    // It looks the same with the keyboard; the toolkit would have all of it painted anew.
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}

private:
    void followDensity();
    void paintMarks(QPainter& painter, const QRect& exposed) const;
    void paintSelection(QPainter& painter) const;
    void paintSpoken(QPainter& painter) const;
    void forgetReadable();

    const page::Recording& recording_;
    page::SurfaceId id_;
    double heightPx_ = 0;
    output::RasterSurface raster_;
    int inset_ = 0;
    int controlsFoot_ = 0;
    bool followsPage_ = false;
    Marks marks_;
    std::vector<QRectF> selection_;
    QRectF spoken_;
    QPointer<QWidget> rim_;
    int drawing_ = 0;
    mutable std::unique_ptr<const page::ReadablePage> readable_; ///< made when it is asked for
    mutable std::optional<QRegion> kept_;                        ///< as well
};

} // namespace look
