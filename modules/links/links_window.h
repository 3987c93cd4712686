#pragma once

#include "links/link_list.h"

#include <QMainWindow>

#include <functional>

namespace look {
class Button;
}

class QLabel;
class QScrollArea;

namespace links {

/// The page of links. Nothing is fetched: a link that is pressed goes to the system's browser.
class LinksWindow : public QMainWindow {
public:
    /// Hands an address to the browser; false when there is none.
    using Opener = std::function<bool(const QUrl&)>;

    LinksWindow(const std::vector<LinkGroup>& groups, const QString& edition, Opener open);

private:
    QWidget* page(const std::vector<LinkGroup>& groups);
    QWidget* footer(const QString& edition);
    void follow(const Link& link);
    void copy();

    Opener open_;
    QScrollArea* scroll_;
    QLabel* line_ = nullptr; ///< the address, or that it could not be opened
    look::Button* copy_ = nullptr;
    QUrl failed_;
};

} // namespace links
