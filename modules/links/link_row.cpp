#include "links/link_row.h"

#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>

namespace links {

namespace {

constexpr int kHeight = 46;
constexpr int kLeft = 12;
constexpr int kNameBaseline = 19;
constexpr int kTextBaseline = 37;
constexpr int kTextPx = look::kButtonPx;

} // namespace

LinkRow::LinkRow(const Link& link, QWidget* parent) : QAbstractButton(parent), link_(link) {
    look::setAccessibleRole(*this, QAccessible::Link);
    setText(link.name);
    setAccessibleName(link.name);
    setAccessibleDescription(link.description + QStringLiteral(", ") + link.address.toString());
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

QSize LinkRow::sizeHint() const {
    const int name = QFontMetrics(look::interfaceFont(look::kLabelPx, look::Weight::Bold))
                         .horizontalAdvance(link_.name);
    const int text =
        QFontMetrics(look::interfaceFont(kTextPx)).horizontalAdvance(link_.description);
    return {qMax(name, text) + 2 * kLeft, kHeight};
}

void LinkRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (underMouse() || hasFocus())
        look::drawFrame(painter, rect(), 4, look::kBlue,
                        QColor::fromRgb(isDown() ? look::kPressedTint : look::kHoverTint),
                        hasFocus() ? 2 : 1);
    QFont name = look::interfaceFont(look::kLabelPx, look::Weight::Bold);
    name.setUnderline(underMouse());
    painter.setFont(name);
    painter.setPen(QColor::fromRgb(look::kBlue));
    painter.drawText(kLeft, kNameBaseline, link_.name);
    painter.setFont(look::interfaceFont(kTextPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(kLeft, kTextBaseline, link_.description);
}

void LinkRow::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    pointedAt_();
}

void LinkRow::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    pointedAt_();
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
