#include "look/text_field.h"

#include "look/palette.h"
#include "look/pixels.h"

#include <QContextMenuEvent>
#include <QPainter>

namespace look {

namespace {

constexpr double kRadius = 3;
constexpr int kTextMargin = 5;

} // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setTextMargins(kTextMargin, 0, kTextMargin, 0);
    QPalette colours = palette();
    // The frame below is the ground; the base class paints the text only.
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Text, QColor::fromRgb(kInk));
    colours.setColor(QPalette::Disabled, QPalette::Text, QColor::fromRgb(kMuted));
    colours.setColor(QPalette::Highlight, QColor::fromRgb(kBlue));
    colours.setColor(QPalette::HighlightedText, QColor::fromRgb(kPaper));
    setPalette(colours);
}

void TextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        const bool focused = hasFocus();
        drawFrame(painter, rect(), kRadius,
                  !isEnabled() ? kRule
                  : focused    ? kBlue
                               : kEdge,
                  QColor::fromRgb(isEnabled() ? kPaper : kIvory), focused ? 2 : 1);
    }
    QLineEdit::paintEvent(event);
}

void TextField::contextMenuEvent(QContextMenuEvent* event) {
    event->ignore(); // Qt's own menu is not in French
}

} // namespace look
