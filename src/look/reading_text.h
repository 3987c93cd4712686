#pragma once

#include <QTextBrowser>

namespace look {

/// Rich text of our own to be read, on paper, with links that its owner follows. It loads nothing,
/// whatever addresses the text has; words of a course are to be escaped before they come here.
class ReadingText : public QTextBrowser {
public:
    /// `margin` is that around the text, in pixels.
    ReadingText(double margin, QWidget* parent);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

} // namespace look
