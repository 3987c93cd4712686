// The main window as the page loader, and the page while it is drawn, see it.

#include "look/announcement.h"
#include "look/button.h"
#include "look/page_panel.h"
#include "look/picture_accessible.h"
#include "look/picture_box.h"
#include "look/scroll_bar.h"
#include "look/tool_tip.h"
#include "viewer/chapter_bar.h"
#include "viewer/multim.h"
#include "viewer/page_finder.h"
#include "viewer/page_selection.h"
#include "viewer/rail.h"
#include "viewer/video_frame.h"

#include <QWindow>

namespace viewer {

/// Whether the page, or a link on it, has the keyboard.
bool Multim::pageHasFocus() const {
    const QWidget* focused = focusWidget();
    const auto holds = [focused](const QWidget* area) {
        return focused == area || area->isAncestorOf(focused);
    };
    return focused && (holds(PictureTEXTE_) || holds(PICTUREILLUS_) || holds(titre_) ||
                       holds(videoFrame_)); // the video is the page's
}

void Multim::setPageVisible(bool visible) {
    // Hidden, the page loses the keyboard; it has it back with the next page.
    if (!visible)
        pageHadFocus_ = pageHasFocus();
    PictureTEXTE_->setVisible(visible);
    PICTUREILLUS_->setVisible(visible);
    if (visible && pageHadFocus_)
        PictureTEXTE_->setFocus();
}

/// At once, or with the page that comes.
void Multim::takeFocusToPage() {
    pageHadFocus_ = true;
    if (!PictureTEXTE_->isHidden())
        PictureTEXTE_->setFocus();
}

/// A button that goes or is switched off leaves the keyboard to the page, not to some other button:
/// the same key struck again must not press that one.
void Multim::changeButtons(const std::function<void()>& change) {
    const QWidget* const focused = focusWidget();
    change();
    if (focused && (focused->isHidden() || !focused->isEnabled()))
        takeFocusToPage();
}

void Multim::resetLinks() {
    parts_->collaborators.links.reset();
}

void Multim::hideScrollBarAndVideoFrame() {
    panel_->VScroll1().hide();
    setVideoLayout(VideoLayout::None);
}

void Multim::clearPictures() {
    stopReading();
    finder_->pageGoes();
    selection_->clear();
    shown_ = {};
    for (look::PictureBox* box : {PictureTEXTE_, PICTUREILLUS_, titre_})
        box->empty();
    Framebase_->clearLine();
}

void Multim::setCaption(const QString& caption) {
    // The toolkit takes these signs for the place of a mark, and shows them only when doubled.
    const QString place = QStringLiteral("[*]");
    setWindowTitle(QString(caption).replace(place, place + place));
}

void Multim::setTitle(const QString& title) {
    const QString words = title.simplified();
    PictureTEXTE_->setAccessibleName(words.isEmpty() ? QStringLiteral("Page du cours") : words);
    titre_->setAccessibleName(words.isEmpty() ? QStringLiteral("Titre de la page") : words);
    look::setToolTip(*titre_, shown_.title == words ? QString() : words);
}

void Multim::setBackEnabled(bool enabled) {
    changeButtons([&] { button("avant").setEnabled(enabled); });
}

void Multim::setForwardEnabled(bool enabled) {
    changeButtons([&] { button("apres").setEnabled(enabled); });
}

int Multim::scrolled() const {
    return panel_->scrolled();
}

void Multim::scrollTo(int twips) {
    panel_->scrollTo(twips);
}

void Multim::fitPage() {
    for (look::PictureBox* box : {PictureTEXTE_, PICTUREILLUS_, titre_}) {
        box->setPageHeightPx(shown_.heightPx(box->surfaceId()));
        box->showDrawing();
    }
    parts_->collaborators.links.show();
    panel_->fitPage();
    finder_->pageStands();
    for (look::PictureBox* box : {PictureTEXTE_, PICTUREILLUS_, titre_})
        look::PictureAccessible::tellNewPage(*box);
    look::announce(*this, PictureTEXTE_->accessibleName());
}

void Multim::setChapterButtons(bool previous, bool next) {
    changeButtons([&] { Framebase_->setButtonsVisible(previous, next); });
}

void Multim::setPrintable(bool printable) {
    changeButtons([&] { button("CommandIMPRIME").setEnabled(printable); });
}

void Multim::setSummary(const QString& code, const QString& caption) {
    summaryCode_ = code;
    look::Button& Command2 = button("Command2");
    Command2.setCaption(caption);
    Command2.setIconName(caption == u"Accueil" ? QStringLiteral("home")
                                               : QStringLiteral("summary"));
}

void Multim::setReturnToTestVisible(bool visible) {
    changeButtons([&] { rail_->setReturnToTestVisible(visible); });
}

void Multim::tellUnreadablePage() {
    report(
        QStringLiteral("La page demandée ne peut pas être lue. Vérifiez le disque ou le réseau."));
}

void Multim::markWords(const FoundWords& words) {
    finder_->mark(words);
}

void Multim::showHourglass() {
    busy_ = true;
    showPointer();
}

void Multim::restorePointer() {
    busy_ = false;
    showPointer();
}

void Multim::showPointer() {
    if (!busy_ && testAttribute(Qt::WA_SetCursor)) {
        unsetCursor();
        return;
    }
    // Before the window is on the screen no pointer can be over it, and reading the hourglass from
    // the desktop's theme would delay the first page.
    if (busy_ && windowHandle() && windowHandle()->isExposed())
        setCursor(Qt::WaitCursor);
}

void Multim::setBusy(bool busy) {
    busy ? showHourglass() : restorePointer();
}

void Multim::refresh(page::SurfaceId surface) {
    look::PictureBox& area = box(surface);
    area.showDrawing();
    if (area.isVisible())
        parts_->collaborators.links.show();
    area.repaint();
}

look::PictureBox& Multim::box(page::SurfaceId surface) {
    switch (surface) {
    case page::SurfaceId::Titre:
        return *titre_;
    case page::SurfaceId::PictureIllus:
        return *PICTUREILLUS_;
    default:
        return *PictureTEXTE_;
    }
}

void Multim::reveal(const QRect& part) {
    panel_->reveal(part);
}

} // namespace viewer
