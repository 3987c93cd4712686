#pragma once

#include "help/help_book.h"
#include "help/help_search.h"

#include <QTextBrowser>

namespace help {

/// A page of the manual on white paper, with the words looked for marked. It shows nothing but the
/// manual: links elsewhere do nothing.
class HelpBrowser : public QTextBrowser {
public:
    HelpBrowser(const HelpBook& book, QWidget* parent);

    /// Shows the page in `file`; nothing happens where the book has none of that name.
    void showPage(const QString& file);

    /// Position of the page shown.
    int page() const;

    /// Calls `shown` whenever another page is shown, or other words are marked.
    void onShown(std::function<void()> shown) { shown_ = std::move(shown); }

    /// Marks the words on the page shown and on those that follow.
    void setQuery(const HelpQuery& query);

    int hitCount() const { return static_cast<int>(hits_.size()); }
    /// From 0; -1 while none has been gone to.
    int currentHit() const { return currentHit_; }
    /// Goes to the next word marked, or with -1 to the one before it, around the ends.
    void stepHit(int by);

    /// Steps of the text's size, 0 at first; each enlarges it by a tenth.
    static constexpr int kSmallest = -2;
    static constexpr int kLargest = 10;
    int zoomStep() const { return zoomStep_; }
    void setZoomStep(int step);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void findHits();
    void paintHits();

    const HelpBook& book_;
    std::function<void()> shown_;
    HelpQuery query_;
    QList<Span> hits_; ///< characters of the document
    int currentHit_ = -1;
    int zoomStep_ = 0;
};

} // namespace help
