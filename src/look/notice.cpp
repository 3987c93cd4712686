#include "look/notice.h"

#include "look/announcement.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/reading_text.h"

#include <QPainter>

namespace look {

namespace {

constexpr double kMargin = 24;

} // namespace

Notice::Notice(QWidget* parent) : QWidget(parent), text_(new ReadingText(kMargin, this)) {
    setObjectName(QStringLiteral("notice"));
    text_->setObjectName(QStringLiteral("noticeText"));
    hide();
}

void Notice::tell(const QString& title, const QStringList& paragraphs) {
    QString html = QStringLiteral("<h3>") + title.toHtmlEscaped() + QStringLiteral("</h3>");
    for (const QString& paragraph : paragraphs)
        html += QStringLiteral("<p>") + paragraph.toHtmlEscaped() + QStringLiteral("</p>");
    text_->setHtml(html);
    text_->setAccessibleName(title);
    show();
    text_->setFocus();
    announce(*this, title);
}

void Notice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    text_->paintFrame(painter, rect(), 0, kRule);
}

void Notice::resizeEvent(QResizeEvent*) {
    text_->setGeometry(rect().marginsRemoved(kInsideFrame));
}

} // namespace look
