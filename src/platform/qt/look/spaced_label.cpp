#include "platform/qt/look/spaced_label.h"

#include "platform/qt/look/interface_font.h"
#include "platform/qt/look/palette.h"

#include <QPainter>
#include <QTextLayout>

namespace platform::look {

SpacedLabel::SpacedLabel(int lineHeight, int baseline, QWidget* parent)
    : QLabel(parent), lineHeight_(lineHeight), baseline_(baseline) {
    setTextFormat(Qt::PlainText);
    setFont(interfaceFont(kLabelPx));
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, QColor::fromRgb(kInk));
    setPalette(colours);
}

int SpacedLabel::heightForWidth(int width) const {
    int lines = 0;
    forEachLine(width, [&lines](const QTextLine&, const QTextLayout&) { ++lines; });
    return lines * lineHeight_;
}

void SpacedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    int baseline = baseline_;
    forEachLine(width(), [&](const QTextLine& line, const QTextLayout& layout) {
        painter.drawText(QPointF(0, baseline),
                         layout.text().mid(line.textStart(), line.textLength()));
        baseline += lineHeight_;
    });
}

template <class Visit>
void SpacedLabel::forEachLine(int width, Visit visit) const {
    const QString plain = text().replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QString& paragraph : plain.split(u'\n')) {
        QTextLayout layout(paragraph, font());
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            visit(line, layout);
        }
        layout.endLayout();
    }
}

} // namespace platform::look
