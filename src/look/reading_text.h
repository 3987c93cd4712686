#pragma once

#include <QTextBrowser>

namespace look {

/// Rich text of our own to be read, on paper, with links that its owner follows. It loads nothing,
/// whatever addresses the text has; words of a course are to be escaped before they come here.
class ReadingText : public QTextBrowser {
public:
    /// `margin` is that around the text, in pixels.
    ReadingText(double margin, QWidget* parent);

    /// The frame around it, which its owner paints: as of a field while it has the keyboard. It
    /// needs kInsideFrame.
    void paintFrame(QPainter& painter, const QRect& place, double radius, QRgb edge) const;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    QVariant loadResource(int type, const QUrl& name) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

} // namespace look
