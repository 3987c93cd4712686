#pragma once

#include <QListView>

namespace look {

/// A list of single lines, one of which can be chosen.
class ListBox : public QListView {
public:
    explicit ListBox(QWidget* parent);

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void paintFrame();
};

} // namespace look
