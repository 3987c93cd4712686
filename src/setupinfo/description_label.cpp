#include "setupinfo/description_label.h"

#include "platform/qt/look/interface_font.h"
#include "platform/qt/look/palette.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace setupinfo {

namespace look = platform::look;

namespace {

constexpr int kLineHeight = 22;
constexpr int kBaseline = 16; ///< in a line

QString leadingSpaces(const QString& line) {
    qsizetype count = 0;
    while (count < line.size() && line[count] == u' ')
        ++count;
    return line.first(count);
}

} // namespace

DescriptionLabel::DescriptionLabel(const QString& text, int width, QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setText(text);
    setFont(look::interfaceFont(look::kLabelPx));
    setFixedWidth(width);
    int lines = 0;
    forEachLine([&lines](const QString&, double) { ++lines; });
    setFixedHeight(lines * kLineHeight);
}

template <class Visit>
void DescriptionLabel::forEachLine(Visit visit) const {
    for (const QString& paragraph : text().split(QStringLiteral("\r\n"))) {
        const QString spaces = leadingSpaces(paragraph);
        const double indent = QFontMetricsF(font()).horizontalAdvance(spaces);
        QTextLayout layout(paragraph.mid(spaces.size()), font());
        QTextOption wrapping;
        wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(wrapping);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width() - indent);
            visit(layout.text().mid(line.textStart(), line.textLength()), indent);
        }
        layout.endLayout();
    }
}

void DescriptionLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(QColor::fromRgb(look::kInk));
    int baseline = kBaseline;
    forEachLine([&](const QString& line, double left) {
        painter.drawText(QPointF(left, baseline), line);
        baseline += kLineHeight;
    });
}

} // namespace setupinfo
