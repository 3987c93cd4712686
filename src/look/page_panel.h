#pragma once

#include "look/scroll_geometry.h"
#include "page/surface_widths.h"

#include <QWidget>

namespace look {
class ScrollBar;
}

namespace look {

class PictureBox;

/// The white sheet in the middle of the main window: the view `framekx`, in it the page
/// `PictureTEXTE` and its scroll bar `VScroll1`.
class PagePanel : public QWidget {
public:
    /// Width of the page, in pixels.
    static constexpr int kPageWidth = page::kPageWidthPx;

    explicit PagePanel(QWidget* parent);

    QWidget& framekx() { return *framekx_; }
    ScrollBar& VScroll1() { return *VScroll1_; }

    /// Takes the page area into the view.
    void setPage(PictureBox* page);

    /// A strip that can stand at the foot of the panel; it is hidden at first. The view ends above
    /// it, and the page stays where it is as far as it can.
    void setFoot(QWidget* foot);
    void showFoot(bool shown);

    /// Makes the panel `height` pixels tall and the view `viewHeight`, less what the foot takes.
    void setPanelHeight(int height, int viewHeight);

    /// Shows the page from its top and sets the scroll bar up for its height.
    void fitPage();
    /// The same after the view alone has changed: the page stays where it is as far as it can.
    void fitView();

    /// Moves the page by lines of running text or by screens, down for positive counts.
    void scrollLines(double count);
    void scrollScreens(int count);
    void scrollToTop();
    void scrollToBottom();
    /// Down from the top, in twips; as far as the page reaches.
    int scrolled() const;
    void scrollTo(int twips);

    /// What shows of the page, in its pixels.
    int viewTopPx() const;
    int viewHeightPx() const;

    /// Scrolls as little as it takes to show this part of the page, in pixels, and a little around
    /// it.
    void reveal(const QRect& part);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();
    void VScroll1_Change();
    void VScroll1_Scroll();
    void scrollBy(double twips);

    QWidget* framekx_;
    ScrollBar* VScroll1_;
    PictureBox* page_ = nullptr;
    QWidget* foot_ = nullptr;
    int viewHeight_ = 0; ///< without the foot
    ScrollGeometry geometry_{};
    bool framed_ = false;   ///< while the page has the keyboard
    bool outlined_ = false; ///< it is, now
};

} // namespace look
