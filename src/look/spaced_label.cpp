#include "look/spaced_label.h"

#include "look/ink.h"
#include "look/interface_font.h"
#include "look/palette.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace look {

namespace {

QString leadingSpaces(const QString& paragraph) {
    qsizetype count = 0;
    while (count < paragraph.size() && paragraph[count] == u' ')
        ++count;
    return paragraph.first(count);
}

} // namespace

SpacedLabel::SpacedLabel(int lineHeight, int baseline, QWidget* parent)
    : QLabel(parent), lineHeight_(lineHeight), baseline_(baseline) {
    setTextFormat(Qt::PlainText);
    setFont(interfaceFont(kLabelPx));
    setInk(*this, kInk);
}

int SpacedLabel::heightForWidth(int width) const {
    int lines = 0;
    forEachLine(width, [&lines](const QString&, double) { ++lines; });
    return lines * lineHeight_;
}

void SpacedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    int baseline = baseline_;
    forEachLine(width(), [&](const QString& line, double left) {
        painter.drawText(QPointF(left, baseline), line);
        baseline += lineHeight_;
    });
}

template <class Visit>
void SpacedLabel::forEachLine(int width, Visit visit) const {
    const QString plain = text().replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    for (const QString& paragraph : plain.split(u'\n')) {
        const QString spaces = leadingSpaces(paragraph);
        const double left = QFontMetricsF(font()).horizontalAdvance(spaces);
        QTextLayout layout(paragraph.mid(spaces.size()), font());
        layout.setTextOption(wrapping);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width - left);
            visit(layout.text().mid(line.textStart(), line.textLength()), left);
        }
        layout.endLayout();
    }
}

} // namespace look
