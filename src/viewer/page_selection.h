#pragma once

#include "page/text_metrics.h"
#include "page/text_selection.h"

#include <QObject>

#include <functional>

class QKeyEvent;
class QMouseEvent;
class QPoint;

namespace look {
class PictureBox;
}

namespace viewer {

/// Text of the page is selected with the mouse or with Shift and the arrows, and copied: Ctrl+A,
/// Ctrl+C, or the menu of the right button, which also copies the address of the page. Links are
/// controls of their own on the page, and have their clicks.
class PageSelection : public QObject {
public:
    /// `address` tells the code of the page shown. All must outlive it.
    PageSelection(look::PictureBox& box, const page::TextMetrics& metrics,
                  std::function<QString()> address);

    /// Whether the key was one of its own, and is done with.
    bool takeKey(const QKeyEvent& event);

    /// Another page comes, on which nothing is selected.
    void clear();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool mouse(const QMouseEvent& event);
    void openMenu(QPoint at, bool byKey);
    void copy() const;
    void show();
    qsizetype positionAt(QPoint pixels) const;

    look::PictureBox& box_;
    const page::TextMetrics& metrics_;
    std::function<QString()> address_;
    page::TextSelection selection_;
    bool isDragging_ = false;
};

} // namespace viewer
