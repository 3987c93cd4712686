#include "look/list_box.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/scroll_bar.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace look {

namespace {

constexpr double kRadius = 3;
constexpr int kFrame = 2;    ///< the frame of a list with the keyboard
constexpr int kAbove = 5;    ///< the first line, the frame included
constexpr int kRow = 24;     ///< height of a line
constexpr int kTextLeft = 6; ///< of a line, inside the frame

class LineDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {option.rect.width(), kRow};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool chosen = option.state & QStyle::State_Selected;
        const bool hovered = option.state & QStyle::State_MouseOver;
        if (chosen || hovered)
            painter->fillRect(option.rect, QColor::fromRgb(chosen ? kBlue : kHoverTint));
        painter->setFont(option.font);
        painter->setPen(QColor::fromRgb(chosen ? kPaper : kInk));
        const QRect place = option.rect.adjusted(kTextLeft, 0, -kTextLeft, 0);
        const QString line = index.data().toString();
        painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(line, Qt::ElideRight, place.width()));
    }
};

} // namespace

ListBox::ListBox(QWidget* parent) : QListView(parent) {
    setFont(interfaceFont(kLabelPx));
    setItemDelegate(new LineDelegate(this));
    setVerticalScrollBar(new ScrollBar(this, ScrollBar::Top::Minimum));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setViewportMargins(kFrame, kAbove, kFrame, kAbove);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
}

bool ListBox::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Paint:
        paintFrame();
        return true;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    default:
        break;
    }
    return QListView::event(event);
}

void ListBox::paintFrame() {
    QPainter painter(this);
    look::drawFrame(painter, rect(), kRadius, hasFocus() ? kBlue : kEdge, QColor::fromRgb(kPaper),
                    hasFocus() ? kFrame : 1);
}

void ListBox::contextMenuEvent(QContextMenuEvent* event) {
    event->ignore();
}

} // namespace look
