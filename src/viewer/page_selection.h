#pragma once

#include "page/text_metrics.h"
#include "page/text_selection.h"

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

#include <functional>
#include <optional>

class QKeyEvent;
class QMouseEvent;

namespace look {
class PagePanel;
class PictureBox;
} // namespace look

namespace viewer {

/// Text of the page is selected with the mouse or with Shift and the arrows, and copied: Ctrl+A,
/// Ctrl+C, or the menu of the right button, which also copies the address of the page and has it
/// read aloud. Pulled beyond the view, the mouse scrolls it. Links are controls of their own on the
/// page, and have their clicks.
class PageSelection : public QObject {
public:
    /// What its menu offers beside copying text.
    struct Offers {
        std::function<QString()> address; ///< the code of the page shown
        std::function<bool()> isReading;  ///< whether the page is being read aloud
        std::function<void()> readAloud;  ///< begins with that, or ends it
    };

    /// All must outlive it.
    PageSelection(look::PictureBox& box, look::PagePanel& panel, const page::TextMetrics& metrics,
                  Offers offers);

    /// Whether the key was one of its own, and is done with.
    bool takeKey(const QKeyEvent& event);

    /// Where the selected text begins in that of the page; nothing when none is selected.
    std::optional<qsizetype> start() const;

    /// Selects nothing. Whether anything was selected.
    bool clear();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool mouse(const QMouseEvent& event);
    void drag();
    int linesToScroll() const;
    bool isOverText(QPoint pixels) const;
    void showPointer(QPoint pixels);
    void openMenu(QPoint at, bool byKey);
    void copy() const;
    void show();
    qsizetype positionAt(QPoint pixels) const;

    look::PictureBox& box_;
    look::PagePanel& panel_;
    const page::TextMetrics& metrics_;
    Offers offers_;
    page::TextSelection selection_;
    bool isDragging_ = false;
    QPoint pointer_; ///< while dragging, in pixels of the view
    QBasicTimer scrolling_;
};

} // namespace viewer
