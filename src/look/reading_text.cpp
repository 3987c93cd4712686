#include "look/reading_text.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/scroll_bar.h"

#include <QPainter>

namespace look {

ReadingText::ReadingText(double margin, QWidget* parent) : QTextBrowser(parent) {
    setVerticalScrollBar(new ScrollBar(this, ScrollBar::Top::Minimum));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setFrameShape(NoFrame);
    setOpenLinks(false);
    setFont(interfaceFont(kLabelPx));
    document()->setDocumentMargin(margin);
    document()->setDefaultStyleSheet(QStringLiteral("a { color: %1; text-decoration: none }")
                                         .arg(QColor::fromRgb(kBlue).name()));
    QPalette colours = palette();
    colours.setColor(QPalette::Base, QColor::fromRgb(kPaper));
    colours.setColor(QPalette::Text, QColor::fromRgb(kInk));
    colours.setColor(QPalette::Highlight, QColor::fromRgb(kBlue));
    colours.setColor(QPalette::HighlightedText, QColor::fromRgb(kPaper));
    setPalette(colours);
}

QVariant ReadingText::loadResource(int, const QUrl&) {
    return {};
}

void ReadingText::paintFrame(QPainter& painter, const QRect& place, double radius,
                             QRgb edge) const {
    look::drawFrame(painter, place, radius, hasFocus() ? kBlue : edge, QColor::fromRgb(kPaper),
                    hasFocus() ? 2 : 1);
}

void ReadingText::focusInEvent(QFocusEvent* event) {
    QTextBrowser::focusInEvent(event);
    parentWidget()->update();
}

void ReadingText::focusOutEvent(QFocusEvent* event) {
    QTextBrowser::focusOutEvent(event);
    parentWidget()->update();
}

void ReadingText::contextMenuEvent(QContextMenuEvent*) {} // Qt's own menu is not in French

} // namespace look
