#pragma once

#include "links/link_list.h"

#include <QAbstractButton>

#include <functional>
#include <utility>

namespace links {

/// A link one presses: its name, and what is found there. Tells when it is pointed at, by the mouse
/// or the keyboard.
class LinkRow : public QAbstractButton {
public:
    explicit LinkRow(const Link& link, QWidget* parent = nullptr);

    const Link& link() const { return link_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    void onPointedAt(std::function<void()> tell) { pointedAt_ = std::move(tell); }

protected:
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Link link_;
    std::function<void()> pointedAt_ = [] {};
};

} // namespace links
