#include "look/page_panel.h"

#include "look/ink_rim.h"
#include "look/palette.h"
#include "look/picture_box.h"
#include "look/pixels.h"
#include "look/scroll_bar.h"
#include "page/twips.h"

#include <QFocusEvent>
#include <QPainter>

namespace look {

namespace {

constexpr int kInset = 8;
/// Frame around the foot, as thick as it is while the page has the keyboard.
constexpr int kFootInset = 2;
constexpr int kScrollBarWidth = 16;
/// Room above or below what is revealed.
constexpr int kRevealMargin = 8;
constexpr int kTwips = static_cast<int>(page::kTwipsPerPixel);

} // namespace

PagePanel::PagePanel(QWidget* parent)
    : QWidget(parent), framekx_(new QWidget(this)), VScroll1_(new ScrollBar(framekx_)) {
    framekx_->setObjectName(QStringLiteral("framekx"));
    VScroll1_->setObjectName(QStringLiteral("VScroll1"));
    VScroll1_->setAccessibleName(QStringLiteral("Défilement de la page"));
    VScroll1_->hide();
    connect(VScroll1_, &QAbstractSlider::valueChanged, this, [this] { VScroll1_Change(); });
    connect(VScroll1_, &QAbstractSlider::sliderMoved, this, [this] { VScroll1_Scroll(); });
}

void PagePanel::setPage(PictureBox* page) {
    page_ = page;
    page_->setParent(framekx_);
    page_->setFollowsPage();
    page_->setGeometry(0, 0, kPageWidth, 0);
    // The keyboard reaches the page, so that a screen reader reads it there.
    page_->setFocusPolicy(Qt::TabFocus);
    page_->installEventFilter(this);
    VScroll1_->raise();
    new InkRim(*page_, this);
}

void PagePanel::setPanelHeight(int height, int viewHeight) {
    resize(width(), height);
    viewHeight_ = viewHeight;
    layOut();
}

void PagePanel::layOut() {
    const bool hasFoot = foot_ && !foot_->isHidden();
    const int viewHeight = viewHeight_ - (hasFoot ? foot_->height() : 0);
    framekx_->setGeometry(kInset, kInset, kPageWidth + kScrollBarWidth, viewHeight);
    VScroll1_->setGeometry(kPageWidth, 0, kScrollBarWidth, viewHeight);
    if (hasFoot)
        foot_->move(kFootInset, height() - kFootInset - foot_->height());
}

void PagePanel::setFoot(QWidget* foot) {
    foot_ = foot;
    foot_->hide();
}

void PagePanel::showFoot(bool shown) {
    foot_->setVisible(shown);
    layOut();
    fitView();
}

void PagePanel::fitPage() {
    const int pageHeight = page_->pageHeightPx();
    page_->resize(kPageWidth, pageHeight);
    VScroll1_->setValue(0);
    fitView();
}

void PagePanel::fitView() {
    const int pageHeight = page_->pageHeightPx();
    geometry_ = {VScroll1_->height() * kTwips, pageHeight * kTwips};
    const int lowest = geometry_.isNeeded() ? geometry_.maximum() : 0;
    // The value runs from 0 at the page's top down to a negative "maximum", which Qt calls the
    // minimum.
    VScroll1_->setRange(lowest, 0);
    VScroll1_->setSingleStep(ScrollGeometry::kSmallChange);
    VScroll1_->setPageStep(geometry_.largeChange());
    VScroll1_Change();
    VScroll1_->setVisible(geometry_.isNeeded());
}

void PagePanel::VScroll1_Change() {
    page_->move(0, qRound(VScroll1_->value() / page::kTwipsPerPixel));
}

void PagePanel::VScroll1_Scroll() {
    VScroll1_Change();
}

void PagePanel::scrollBy(double twips) {
    VScroll1_->setValue(geometry_.held(qRound(VScroll1_->value() - twips)));
}

void PagePanel::scrollLines(double count) {
    scrollBy(count * ScrollGeometry::kSmallChange);
}

void PagePanel::scrollScreens(int count) {
    scrollBy(count * geometry_.largeChange());
}

void PagePanel::scrollToTop() {
    VScroll1_->setValue(VScroll1_->maximum());
}

void PagePanel::scrollToBottom() {
    VScroll1_->setValue(VScroll1_->minimum());
}

int PagePanel::scrolled() const {
    return -VScroll1_->value();
}

void PagePanel::scrollTo(int twips) {
    VScroll1_->setValue(-twips);
}

int PagePanel::viewTopPx() const {
    return -page_->y();
}

int PagePanel::viewHeightPx() const {
    return VScroll1_->height();
}

void PagePanel::reveal(const QRect& part) {
    const int above = part.top() - kRevealMargin;
    const int below = part.bottom() + 1 + kRevealMargin;
    const int viewTop = viewTopPx();
    const int viewHeight = viewHeightPx();
    if (above < viewTop)
        VScroll1_->setValue(geometry_.held(-above * kTwips));
    else if (below > viewTop + viewHeight)
        VScroll1_->setValue(geometry_.held(-(below - viewHeight) * kTwips));
}

bool PagePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        // The frame tells where the keyboard is to who has begun to move it.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        framed_ |= event->type() == QEvent::FocusIn && reason != Qt::OtherFocusReason &&
                   reason != Qt::ActiveWindowFocusReason;
        if (const bool outlined = framed_ && page_->hasFocus(); outlined != outlined_) {
            outlined_ = outlined;
            update();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PagePanel::paintEvent(QPaintEvent*) {
    using namespace look;
    QPainter painter(this);
    drawFrame(painter, rect(), 0, outlined_ ? kBlue : kRule, QColor::fromRgb(kPaper),
              outlined_ ? 2 : 1);
}

} // namespace look
