#include "links/link_row.h"

#include "common/house.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>

namespace links {

namespace {

constexpr int kHeight = 46;
constexpr int kLeft = 12;
constexpr int kNameBaseline = 19;
constexpr int kTextBaseline = 37;
constexpr int kTextPx = 12;

} // namespace

LinkRow::LinkRow(const Link& link, QWidget* parent) : QAbstractButton(parent), link_(link) {
    setText(link.name);
    setAccessibleName(link.name);
    setAccessibleDescription(link.description + QStringLiteral(", ") + link.address.toString());
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

QSize LinkRow::sizeHint() const {
    const int name =
        QFontMetrics(common::houseFont(common::kTextPx, true)).horizontalAdvance(link_.name);
    const int text = QFontMetrics(common::houseFont(kTextPx)).horizontalAdvance(link_.description);
    return {qMax(name, text) + 2 * kLeft, kHeight};
}

void LinkRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || hasFocus()) {
        const double edge = hasFocus() ? 2 : 1;
        painter.setPen(QPen(QColor::fromRgb(common::kBlue), edge));
        painter.setBrush(QColor::fromRgb(isDown() ? common::kPressedTint : common::kHoverTint));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    QFont name = common::houseFont(common::kTextPx, true);
    name.setUnderline(underMouse());
    painter.setFont(name);
    painter.setPen(QColor::fromRgb(common::kBlue));
    painter.drawText(kLeft, kNameBaseline, link_.name);
    painter.setFont(common::houseFont(kTextPx));
    painter.setPen(QColor::fromRgb(common::kMuted));
    painter.drawText(kLeft, kTextBaseline, link_.description);
}

void LinkRow::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    Q_EMIT pointedAt();
}

void LinkRow::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    Q_EMIT pointedAt();
}

void LinkRow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) // held down it opens one page, not thirty a second
            click();
        return;
    case Qt::Key_Down:
        focusNextChild();
        return;
    case Qt::Key_Up:
        focusPreviousChild();
        return;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

} // namespace links
