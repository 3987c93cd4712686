#include "help/help_list.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/scroll_bar.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextDocument>

namespace help {

namespace {

using namespace look;

constexpr int kPageRole = Qt::UserRole;     ///< position in the book; none for a heading
constexpr int kLineRole = Qt::UserRole + 1; ///< HTML of the line of context

constexpr int kHeading = 28; ///< heights of a heading and of a page
constexpr int kPage = 24;
constexpr int kIndent = 16;
constexpr int kMargin = 8;

/// `line` with its hits in bold.
QString marked(const QString& line, const QList<Span>& hits) {
    QString html;
    qsizetype done = 0;
    for (const Span& hit : hits) {
        html += line.mid(done, hit.start - done).toHtmlEscaped();
        html += QStringLiteral("<b>") + line.mid(hit.start, hit.length).toHtmlEscaped() +
                QStringLiteral("</b>");
        done = hit.start + hit.length;
    }
    return html + line.mid(done).toHtmlEscaped();
}

} // namespace

class HelpList::Delegate : public QStyledItemDelegate {
public:
    explicit Delegate(QListWidget* list) : QStyledItemDelegate(list), list_(list) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
        const int width = list_->viewport()->width();
        if (!index.data(kPageRole).isValid())
            return {width, kHeading};
        if (index.data(kLineRole).toString().isEmpty())
            return {width, kPage};
        QTextDocument text;
        lay(text, index, width, kInk);
        return {width, qRound(text.size().height()) + kMargin};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool isPage = index.data(kPageRole).isValid();
        const bool chosen = isPage && (option.state & QStyle::State_Selected);
        const bool walked = isPage && list_->hasFocus() && index == list_->currentIndex();
        if (chosen || (isPage && (option.state & QStyle::State_MouseOver)))
            painter->fillRect(option.rect, QColor::fromRgb(chosen ? kBlue : kHoverTint));
        if (walked && !chosen) {
            painter->setPen(QColor::fromRgb(kBlue));
            painter->drawRect(QRectF(option.rect).adjusted(.5, .5, -.5, -.5));
        }
        const QRgb ink = chosen ? kPaper : isPage ? kInk : kMuted;
        if (!index.data(kLineRole).toString().isEmpty())
            return paintFound(*painter, option.rect, index, ink);
        painter->setFont(
            interfaceFont(isPage ? kLabelPx : kButtonPx, isPage ? Weight::Regular : Weight::Bold));
        painter->setPen(QColor::fromRgb(ink));
        const QRect place =
            option.rect.adjusted(isPage ? kIndent : kMargin, 0, -kMargin, isPage ? 0 : -4);
        const QString words = painter->fontMetrics().elidedText(index.data().toString(),
                                                                Qt::ElideRight, place.width());
        painter->drawText(place, Qt::AlignLeft | (isPage ? Qt::AlignVCenter : Qt::AlignBottom),
                          words);
    }

private:
    static void lay(QTextDocument& text, const QModelIndex& index, int width, QRgb ink) {
        text.setDefaultFont(interfaceFont(kButtonPx));
        text.setDocumentMargin(0);
        text.setTextWidth(width - 2 * kMargin);
        text.setHtml(
            QStringLiteral("<div style='color:%1'><span style='font-size:%2px'><b>%3</b>"
                           "</span><br>%4</div>")
                .arg(QColor::fromRgb(ink).name())
                .arg(kLabelPx)
                .arg(index.data().toString().toHtmlEscaped(), index.data(kLineRole).toString()));
    }

    static void paintFound(QPainter& painter, const QRect& place, const QModelIndex& index,
                           QRgb ink) {
        QTextDocument text;
        lay(text, index, place.width(), ink);
        painter.save();
        painter.translate(place.left() + kMargin, place.top() + kMargin / 2);
        text.drawContents(&painter);
        painter.restore();
    }

    QListWidget* list_;
};

HelpList::HelpList(const HelpBook& book, QWidget* parent) : QListWidget(parent), book_(book) {
    setItemDelegate(new Delegate(this));
    setVerticalScrollBar(new ScrollBar(this, ScrollBar::Top::Minimum));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setFont(interfaceFont(kLabelPx));
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    connect(this, &QListWidget::itemClicked, this, [this](auto* item) { open(item); });
    showContents();
}

void HelpList::addHeading(const QString& words) {
    auto* item = new QListWidgetItem(words, this);
    item->setFlags(Qt::NoItemFlags);
}

void HelpList::addPage(int page, const Found* found) {
    auto* item = new QListWidgetItem(book_.pages()[page].title, this);
    item->setData(kPageRole, page);
    if (!found)
        return;
    item->setData(kLineRole, marked(found->line, found->hits));
    item->setData(Qt::AccessibleDescriptionRole, found->line);
}

void HelpList::showContents() {
    clear();
    setAccessibleName(QStringLiteral("Sommaire de l’aide"));
    for (const Chapter& chapter : book_.chapters()) {
        addHeading(chapter.title);
        for (const int page : chapter.pages)
            addPage(page, nullptr);
    }
}

void HelpList::showFound(const QList<Found>& found) {
    clear();
    setAccessibleName(QStringLiteral("Pages trouvées"));
    addHeading(found.isEmpty()     ? QStringLiteral("Aucune page trouvée")
               : found.size() == 1 ? QStringLiteral("Une page trouvée")
                                   : QStringLiteral("%1 pages trouvées").arg(found.size()));
    for (const Found& page : found)
        addPage(page.page, &page);
}

void HelpList::choosePage(int page) {
    clearSelection();
    for (int row = 0; row < count(); ++row) {
        const QVariant here = item(row)->data(kPageRole);
        if (here.isValid() && here.toInt() == page)
            return setCurrentRow(row);
    }
}

int HelpList::firstPage() const {
    return count() > 1 ? item(1)->data(kPageRole).toInt() : -1;
}

void HelpList::open(const QListWidgetItem* item) {
    const QVariant page = item ? item->data(kPageRole) : QVariant();
    if (page.isValid() && open_)
        open_(page.toInt());
}

void HelpList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return open(currentItem());
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Escape:
        return event->ignore(); // the window's
    default:
        QListWidget::keyPressEvent(event);
    }
}

void HelpList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    if (currentRow() < 0 && count() > 1)
        setCurrentRow(1);
}

void HelpList::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    scheduleDelayedItemsLayout(); // lines of context break anew
}

} // namespace help
