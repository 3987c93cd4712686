// The main window's handlers: what its controls, the keyboard, the pointer and the window system
// tell it.

#include "look/button.h"
#include "look/page_panel.h"
#include "look/picture_box.h"
#include "look/scroll_bar.h"
#include "look/zoom.h"
#include "page/twips.h"
#include "shell/display_check.h"
#include "viewer/chapter_bar.h"
#include "viewer/multim.h"
#include "viewer/page_finder.h"
#include "viewer/page_selection.h"
#include "viewer/rail.h"
#include "viewer/toolbar.h"
#include "viewer/video_frame.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <initializer_list>

namespace viewer {

namespace {

/// What a wheel reports for one notch, and how far the page then moves.
constexpr double kWheelNotch = 120;
constexpr double kLinesPerNotch = 3;

QRect inPixels(const shell::Placement& placement) {
    const auto pixels = [](double twips) { return qRound(twips / page::kTwipsPerPixel); };
    return {pixels(placement.left), pixels(placement.top), pixels(placement.width),
            pixels(placement.height)};
}

} // namespace

look::Button& Multim::button(const char* name) const {
    return *static_cast<look::Button*>(findChild<QPushButton*>(QString::fromLatin1(name)));
}

void Multim::connectHandlers() {
    struct Row {
        const char* name;
        void (Multim::*click)();
    };
    static constexpr Row kRows[] = {
        {"apres", &Multim::apres_Click},
        {"avant", &Multim::avant_Click},
        {"suite", &Multim::suite_Click},
        {"avantcours", &Multim::avantcours_Click},
        {"Command2", &Multim::Command2_Click},
        {"command6", &Multim::command6_Click},
        {"command5", &Multim::command5_Click},
        {"Command13", &Multim::Command13_Click},
        {"Command12", &Multim::Command12_Click},
        {"command4", &Multim::command4_Click},
        {"btexo", &Multim::btexo_Click},
        {"Command3", &Multim::Command3_Click},
        {"CommandIMPRIME", &Multim::CommandIMPRIME_Click},
        {"Command10", &Multim::Command10_Click},
        {"Command8", &Multim::Command8_Click},
        {"Command14", &Multim::Command14_Click},
    };
    for (const Row& row : kRows)
        connect(&button(row.name), &QPushButton::clicked, this,
                [this, click = row.click] { (this->*click)(); });
    videoFrame_->onImage4_Click([this](int index) { Image4_Click(index); });
    videoFrame_->projo().onClick([this] { projo_Click(); });
    videoFrame_->projo().onResized([this] {
        if (parts_)
            parts_->collaborators.video.refresh();
    });
    videoFrame_->onSizeToggled([this] { toggleVideoSize(); });
    videoFrame_->onSought([this](double share) {
        if (!hasVideoMenu())
            work([this, share] { parts_->collaborators.video.seek(share); });
    });
}

void Multim::work(const std::function<void()>& task) {
    if (working_ || !parts_)
        return;
    {
        const QScopedValueRollback<bool> busy(working_, true);
        task();
    }
    if (closeRequested_) {
        closeRequested_ = false;
        close();
    }
}

void Multim::followLink(const QString& tag) {
    work([this, tag] { parts_->commands.followLink(tag); });
}

void Multim::apres_Click() {
    work([this] { parts_->commands.forward(); });
}

void Multim::avant_Click() {
    work([this] { parts_->commands.back(); });
}

void Multim::suite_Click() {
    work([this] { parts_->commands.nextInChapter(); });
}

void Multim::avantcours_Click() {
    work([this] { parts_->commands.previousInChapter(); });
}

void Multim::Command2_Click() {
    work([this] { parts_->commands.runCode(summaryCode_); });
}

void Multim::command6_Click() {
    work([this] { parts_->commands.runCode(QStringLiteral("PAG028")); });
}

void Multim::command5_Click() {
    work([this] { parts_->commands.runCode(QStringLiteral("PAG030")); });
}

void Multim::Command13_Click() {
    work([this] { parts_->commands.runCode(QStringLiteral("PAG161")); });
}

void Multim::Command12_Click() {
    work([this] { parts_->commands.runCode(QStringLiteral("EXE070")); });
}

void Multim::command4_Click() {
    work([this] { parts_->commands.search(); });
}

void Multim::btexo_Click() {
    work([this] { parts_->commands.returnToTest(); });
}

void Multim::Command3_Click() {
    work([this] { parts_->commands.calculator(); });
}

void Multim::CommandIMPRIME_Click() {
    work([this] { parts_->commands.print(); });
}

void Multim::Command10_Click() {
    work([this] { parts_->commands.help(); });
}

void Multim::Command8_Click() {
    work([this] { parts_->commands.update(); });
}

void Multim::Command14_Click() {
    close();
}

void Multim::keyPressEvent(QKeyEvent* event) {
    if (!working_ && selection_->takeKey(*event))
        return;
    const auto command = keyCommand(event->key(), event->modifiers());
    if (command)
        perform(*command);
    else
        QWidget::keyPressEvent(event);
}

/// A key does what its button would: nothing while that is disabled or the bar is hidden.
void Multim::perform(KeyCommand command) {
    switch (command) {
    case KeyCommand::LineUp:
        return panel_->scrollLines(-1);
    case KeyCommand::LineDown:
        return panel_->scrollLines(1);
    case KeyCommand::ScreenUp:
        return panel_->scrollScreens(-1);
    case KeyCommand::ScreenDown:
        return panel_->scrollScreens(1);
    case KeyCommand::Top:
        return panel_->scrollToTop();
    case KeyCommand::Bottom:
        return panel_->scrollToBottom();
    case KeyCommand::HistoryBack:
        return button("avant").click();
    case KeyCommand::HistoryForward:
        return button("apres").click();
    case KeyCommand::Find:
        return work([this] { finder_->open(); });
    case KeyCommand::FindNext:
        return work([this] { finder_->next(); });
    case KeyCommand::FindPrevious:
        return work([this] { finder_->previous(); });
    case KeyCommand::ReadAloud:
        return working_ || !parts_ ? void() : readAloud();
    case KeyCommand::LeaveFind:
        if (stopReading())
            return;
        if (!finder_->isOpen() && selection_->clear())
            return;
        if (!finder_->isOpen() && videoLayout_ == VideoLayout::Double)
            return toggleVideoSize();
        if (!finder_->isOpen() && parts_ && parts_->zoom.leaveFilledScreen())
            return;
        return work([this] { finder_->close(); });
    case KeyCommand::Home:
        return work([this] { parts_->commands.runCode(QStringLiteral("PAG001")); });
    case KeyCommand::Search:
        return button("command4").click();
    case KeyCommand::Print:
        return button("CommandIMPRIME").click();
    case KeyCommand::Help:
        return button("Command10").click();
    case KeyCommand::Quit:
        return button("Command14").click();
    }
}

void Multim::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::BackButton)
        perform(KeyCommand::HistoryBack);
    else if (event->button() == Qt::ForwardButton)
        perform(KeyCommand::HistoryForward);
    else
        QWidget::mousePressEvent(event);
}

void Multim::wheelEvent(QWheelEvent* event) {
    // Touchpads report fractions of a notch.
    panel_->scrollLines(-event->angleDelta().y() / kWheelNotch * kLinesPerNotch);
    event->accept();
}

void Multim::watchPointer() {
    for (QWidget* over :
         std::initializer_list<QWidget*>{this, body_, toolbar_, rail_, &panel_->framekx(),
                                         Framebase_, titre_, PictureTEXTE_, PICTUREILLUS_}) {
        over->setMouseTracking(true);
        over->installEventFilter(this);
    }
}

bool Multim::eventFilter(QObject* watched, QEvent* event) {
    // The pointer is on none of the links: they show plain again. On its way out of the window it
    // may have been seen nowhere else.
    const bool left = watched == this && event->type() == QEvent::Leave;
    if (parts_ && (left || event->type() == QEvent::MouseMove))
        parts_->collaborators.links.resetHighlight(PageLinks::kNone);
    return QWidget::eventFilter(watched, event);
}

void Multim::closeEvent(QCloseEvent* event) {
    if (working_) {
        closeRequested_ = true;
        event->ignore();
    } else {
        event->setAccepted(Form_QueryUnload());
    }
}

/// Whether the window may close.
bool Multim::Form_QueryUnload() {
    if (!parts_ || left_)
        return true;
    const QScopedValueRollback<bool> asking(working_, true);
    left_ = parts_->commands.leave();
    closeRequested_ = false;
    return left_;
}

void Multim::resizeEvent(QResizeEvent*) {
    layOut();
    Form_Resize();
}

WindowSizeRule::Window Multim::present() const {
    return {!isMinimized() && !isMaximized() && !isFullScreen(), size() == kWindowSize};
}

void Multim::Form_Resize() {
    // Not while start-up gives the window its size, and not for the rule's own resizing; who had
    // it fill the screen will have it back.
    if (!startUpDone_ || resizing_ || isFullScreen())
        return;
    carryOut(sizeRule_.resized(present()));
    sizeSettled_.start();
}

QRect Multim::ownPlace() const {
    if (!shell::isWideEnoughToCentre(screen_))
        return QRect(pos(), kWindowSize);
    return inPixels(shell::centredWindow(screen_));
}

void Multim::setFillsScreen(bool fills) {
    const QScopedValueRollback<bool> own(resizing_, true);
    if (fills) {
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        showFullScreen();
    } else {
        showNormal();
        resize(kWindowSize);
        if (shell::isWideEnoughToCentre(screen_))
            place(shell::centredWindow(screen_));
    }
}

void Multim::carryOut(const WindowSizeRule::Orders& orders) {
    const QScopedValueRollback<bool> own(resizing_, true);
    if (orders.makeNormal)
        showNormal();
    if (orders.setSize)
        resize(kWindowSize);
    if (orders.centre)
        place(shell::centredWindow(screen_));
}

void Multim::place(const shell::Placement& placement) {
    const QRect pixels = inPixels(placement);
    // The window manager then offers neither to resize nor to maximise it.
    setFixedSize(pixels.size());
    resize(pixels.size());
    move(pixels.topLeft());
}

} // namespace viewer
