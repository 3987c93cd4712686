#include "viewer/page_selection.h"

#include "look/dress.h"
#include "look/page_panel.h"
#include "look/picture_box.h"
#include "page/twips.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTimerEvent>

#include <algorithm>
#include <optional>

namespace viewer {

namespace {

using Step = page::TextSelection::Step;

std::optional<Step> stepOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return Step::Left;
    case Qt::Key_Right:
        return Step::Right;
    case Qt::Key_Up:
        return Step::Up;
    case Qt::Key_Down:
        return Step::Down;
    default:
        return {};
    }
}

/// How often the page goes on while the mouse is beyond the view, and for how many pixels each time
/// by one line more.
constexpr int kScrollMs = 60;
constexpr int kFasterPx = 24;

} // namespace

PageSelection::PageSelection(look::PictureBox& box, look::PagePanel& panel,
                             const page::TextMetrics& metrics, Offers offers)
    : QObject(&box), box_(box), panel_(panel), metrics_(metrics), offers_(std::move(offers)) {
    box.installEventFilter(this);
}

std::optional<qsizetype> PageSelection::start() const {
    return selection_.isEmpty() ? std::nullopt : std::optional(selection_.first());
}

bool PageSelection::clear() {
    const bool any = !selection_.isEmpty();
    selection_ = {};
    isDragging_ = false;
    scrolling_.stop();
    box_.unsetCursor();
    box_.setSelection({});
    return any;
}

bool PageSelection::takeKey(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (const auto step = stepOf(event.key()); step && modifiers == Qt::ShiftModifier) {
        selection_.extend(*step, box_.readablePage(), metrics_);
        show();
        return true;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        selection_.selectAll(box_.readablePage());
        show();
        return true;
    }
    if (event.matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    return false;
}

/// What was copied before stays when nothing is selected.
void PageSelection::copy() const {
    if (!selection_.isEmpty())
        QGuiApplication::clipboard()->setText(selection_.text(box_.readablePage()));
}

void PageSelection::show() {
    std::vector<QRectF> pixels;
    for (const QRectF& area : selection_.areas(box_.readablePage(), metrics_))
        pixels.emplace_back(area.topLeft() / page::kTwipsPerPixel,
                            area.size() / page::kTwipsPerPixel);
    box_.setSelection(std::move(pixels));
}

qsizetype PageSelection::positionAt(QPoint pixels) const {
    const QPointF onSurface = pixels - QPoint(box_.inset(), box_.inset());
    return textPositionAt(box_.readablePage(), onSurface * page::kTwipsPerPixel, metrics_);
}

bool PageSelection::mouse(const QMouseEvent& event) {
    if (event.type() == QEvent::MouseMove) {
        pointer_ = box_.mapTo(&panel_.framekx(), event.position().toPoint());
        if (isDragging_)
            drag();
        else
            showPointer(event.position().toPoint());
        return false; // the links want to know of it too
    }
    if (event.button() != Qt::LeftButton)
        return false;
    isDragging_ = event.type() == QEvent::MouseButtonPress;
    scrolling_.stop();
    if (!isDragging_)
        return true;
    const qsizetype at = positionAt(event.position().toPoint());
    if (event.modifiers() & Qt::ShiftModifier)
        selection_.extendTo(at);
    else
        selection_.begin(at);
    show();
    return true;
}

void PageSelection::drag() {
    selection_.extendTo(positionAt(box_.mapFrom(&panel_.framekx(), pointer_)));
    show();
    if (linesToScroll() == 0)
        scrolling_.stop();
    else if (!scrolling_.isActive())
        scrolling_.start(kScrollMs, this);
}

/// Down for positive counts; 0 while the pointer is in the view.
int PageSelection::linesToScroll() const {
    const QRect view = panel_.framekx().rect();
    if (pointer_.y() < view.top())
        return -1 - (view.top() - pointer_.y()) / kFasterPx;
    if (pointer_.y() > view.bottom())
        return 1 + (pointer_.y() - view.bottom()) / kFasterPx;
    return 0;
}

void PageSelection::timerEvent(QTimerEvent* event) {
    if (event->timerId() != scrolling_.timerId())
        return QObject::timerEvent(event);
    panel_.scrollLines(linesToScroll());
    drag();
}

bool PageSelection::isOverText(QPoint pixels) const {
    const QPointF at = QPointF(pixels - QPoint(box_.inset(), box_.inset())) * page::kTwipsPerPixel;
    const auto& pieces = box_.readablePage().pieces();
    return std::any_of(pieces.begin(), pieces.end(),
                       [&](const page::ReadablePiece* piece) { return piece->area.contains(at); });
}

void PageSelection::showPointer(QPoint pixels) {
    if (isOverText(pixels))
        box_.setCursor(Qt::IBeamCursor);
    else
        box_.unsetCursor();
}

bool PageSelection::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return mouse(*static_cast<QMouseEvent*>(event));
    case QEvent::ContextMenu: {
        const auto* asked = static_cast<QContextMenuEvent*>(event);
        openMenu(asked->globalPos(), asked->reason() == QContextMenuEvent::Keyboard);
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

void PageSelection::openMenu(QPoint at, bool byKey) {
    auto* menu = new QMenu(&box_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("pageMenu"));
    menu->setAccessibleName(QStringLiteral("Texte de la page"));
    look::dress(*menu); // desktops change the fonts of programs that run
    QAction* copying = menu->addAction(QStringLiteral("Copier"), this, [this] { copy(); });
    copying->setEnabled(!selection_.isEmpty());
    QAction* address = menu->addAction(QStringLiteral("Copier l’adresse de la page"), this, [this] {
        QGuiApplication::clipboard()->setText(offers_.address());
    });
    menu->addSeparator();
    menu->addAction((offers_.isReading() ? QStringLiteral("Arrêter la lecture")
                                         : QStringLiteral("Lire à voix haute")) +
                        QStringLiteral("\tCtrl+Maj+L"),
                    this, [this] { offers_.readAloud(); });
    menu->popup(at);
    if (byKey)
        menu->setActiveAction(copying->isEnabled() ? copying : address);
}

} // namespace viewer
