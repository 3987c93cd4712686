#pragma once

#include <QLineEdit>

namespace look {

/// A field for one line of text, its frame painted by hand.
class TextField : public QLineEdit {
public:
    explicit TextField(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

} // namespace look
