#pragma once

#include "links/link_list.h"

#include <QAbstractButton>

namespace links {

/// A link one presses: its name, and what is found there. Tells when it is pointed at, by the mouse
/// or the keyboard.
class LinkRow : public QAbstractButton {
    Q_OBJECT

public:
    explicit LinkRow(const Link& link, QWidget* parent = nullptr);

    const Link& link() const { return link_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void pointedAt();

protected:
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Link link_;
};

} // namespace links
