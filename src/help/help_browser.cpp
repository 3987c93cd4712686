#include "help/help_browser.h"

#include "help/page_document.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/scroll_bar.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QTextBlock>
#include <QWheelEvent>

namespace help {

namespace {

constexpr double kMargin = 20;
constexpr double kZoomStep = .1;

/// Pages have addresses of their own, so that no other kind of address is taken for one.
QUrl addressOf(const QString& file) {
    QUrl url;
    url.setScheme(QStringLiteral("aide"));
    url.setPath(u'/' + file);
    return url;
}

QString fileOf(const QUrl& url) {
    return url.scheme() == QStringLiteral("aide") ? url.path().mid(1) : QString();
}

} // namespace

HelpBrowser::HelpBrowser(const HelpBook& book, QWidget* parent)
    : QTextBrowser(parent), book_(book) {
    using namespace look;
    setVerticalScrollBar(new ScrollBar(this, ScrollBar::Top::Minimum));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setFrameShape(NoFrame);
    setFont(interfaceFont(kLabelPx));
    setOpenLinks(false);
    setAccessibleName(QStringLiteral("Page de l’aide"));
    QPalette colours = palette();
    colours.setColor(QPalette::Base, QColor::fromRgb(kPaper));
    colours.setColor(QPalette::Text, QColor::fromRgb(kInk));
    colours.setColor(QPalette::Link, QColor::fromRgb(kBlue));
    colours.setColor(QPalette::Highlight, QColor::fromRgb(kBlue));
    colours.setColor(QPalette::HighlightedText, QColor::fromRgb(kPaper));
    setPalette(colours);
    document()->setDocumentMargin(kMargin);
    document()->setDefaultStyleSheet(pageStyle());
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) { setSource(url); });
    // Going back and forward does not pass through setSource(); source() is right only by now.
    connect(this, &QTextBrowser::historyChanged, this, [this] { findHits(); });
}

void HelpBrowser::showPage(const QString& file) {
    setSource(addressOf(file));
}

int HelpBrowser::page() const {
    return book_.find(fileOf(source())).value_or(0);
}

void HelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    if (!book_.find(fileOf(url)))
        return;
    QTextBrowser::doSetSource(url, type);
    findHits();
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::ImageResource)
        return pagePicture(book_.folder(), name.path(), devicePixelRatioF());
    const std::optional<int> page = book_.find(fileOf(name));
    return page ? QVariant(book_.pages()[*page].html) : QVariant();
}

void HelpBrowser::setQuery(const HelpQuery& query) {
    query_ = query;
    findHits();
}

void HelpBrowser::findHits() {
    currentHit_ = -1;
    hits_ = query_.hits(document()->toRawText());
    paintHits();
    if (shown_)
        shown_();
}

void HelpBrowser::stepHit(int by) {
    if (hits_.isEmpty())
        return;
    const int from = currentHit_ < 0 && by < 0 ? 0 : currentHit_;
    currentHit_ = (from + by + hitCount()) % hitCount();
    QTextCursor there(document());
    there.setPosition(static_cast<int>(hits_[currentHit_].start));
    setTextCursor(there);
    ensureCursorVisible();
    paintHits();
}

void HelpBrowser::paintHits() {
    using namespace look;
    QList<ExtraSelection> marks;
    for (const Span& hit : hits_) {
        const bool isCurrent = marks.size() == currentHit_;
        ExtraSelection mark;
        mark.cursor = QTextCursor(document());
        mark.cursor.setPosition(static_cast<int>(hit.start));
        mark.cursor.setPosition(static_cast<int>(hit.start + hit.length), QTextCursor::KeepAnchor);
        mark.format.setBackground(QColor::fromRgb(isCurrent ? kCurrentMarkTint : kMarkTint));
        marks.append(mark);
    }
    setExtraSelections(marks);
}

void HelpBrowser::setZoomStep(int step) {
    zoomStep_ = qBound(kSmallest, step, kLargest);
    // The line at the top stays there.
    const int top = cursorForPosition({qRound(2 * kMargin), 0}).position();
    document()->setDefaultStyleSheet(pageStyle(1 + kZoomStep * zoomStep_));
    const int current = currentHit_;
    reload();
    findHits();
    QTextCursor there(document());
    there.setPosition(qMin(top, document()->characterCount() - 1));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(there).top());
    currentHit_ = current;
    paintHits();
}

void HelpBrowser::keyPressEvent(QKeyEvent* event) {
    // The window's own keys, which the base class would take for something else.
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Backspace ||
        (event->modifiers() & Qt::AltModifier))
        event->ignore();
    else
        QTextBrowser::keyPressEvent(event);
}

void HelpBrowser::contextMenuEvent(QContextMenuEvent* event) {
    event->ignore(); // Qt's own menu is not in French
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier))
        return QTextBrowser::wheelEvent(event);
    // The base class would enlarge the default font, which the style sheet hides.
    if (event->angleDelta().y() != 0)
        setZoomStep(zoomStep_ + (event->angleDelta().y() > 0 ? 1 : -1));
    event->accept();
}

} // namespace help
