#pragma once

#include "help/help_book.h"
#include "help/help_search.h"

#include <QListWidget>

namespace help {

/// The list at the left: the book's chapters with their pages, or the pages that a search found.
/// Enter and a click open a page.
class HelpList : public QListWidget {
public:
    HelpList(const HelpBook& book, QWidget* parent);

    void showContents();
    void showFound(const QList<Found>& found);

    /// Shows which page is open.
    void choosePage(int page);

    /// The first page of the list; -1 for none.
    int firstPage() const;

    /// Calls `open` with the position of the page asked for.
    void onOpen(std::function<void(int)> open) { open_ = std::move(open); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Delegate;

    void addHeading(const QString& words);
    void addPage(int page, const Found* found);
    void open(const QListWidgetItem* item);

    const HelpBook& book_;
    std::function<void(int)> open_;
};

} // namespace help
