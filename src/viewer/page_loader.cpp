#include "viewer/page_loader.h"

#include "page/course_name.h"
#include "page/numbers.h"
#include "text/rounding.h"
#include "viewer/page_code.h"

namespace viewer {

PageLoader::PageLoader(shell::SharedState& state, coursedata::BoundRecord& bound, PageView& view,
                       markup::SourceWindow& source, markup::Renderer& renderer, VideoDevice& video)
    : state_(state), bound_(bound), view_(view), source_(source), renderer_(renderer),
      video_(video), history_(state) {}

void PageLoader::bindTo(coursedata::Recordset& records) {
    records_ = &records;
    moveTo(0);
}

void PageLoader::moveTo(int position) {
    if (records_ && records_->setAbsolutePosition(position))
        bound_.read(*records_);
}

void PageLoader::takeOverOrderIndex() {
    if (const auto index = text::toInt32(page::leadingNumber(bound_.TextIndex)))
        state_.CurrentOrderIndex = *index;
}

void PageLoader::showCurrentRecord() {
    view_.setPageVisible(false);
    freeLinks();
    view_.hideScrollBarAndVideoFrame();
    view_.clearPictures();
    video_.close();
    view_.setCaption(page::kCourseName);
    view_.setTitle(bound_.Textitre);
    recordVisit();
    drawPage();
    view_.fitPage();
    showButtons();
    view_.setPageVisible(true);
}

/// Links, the entries of their menus and half a caption belong to one page.
void PageLoader::freeLinks() {
    view_.resetLinks();
    renderer_.state().links = {};
    renderer_.state().lienEnAttente.clear();
}

void PageLoader::recordVisit() {
    if (state_.HistoryRecording) {
        if (const auto page = text::toInt16(page::leadingNumber(bound_.TextID)))
            history_.record(*page);
        view_.setForwardEnabled(false);
    }
    view_.setBackEnabled(history_.canGoBack());
}

void PageLoader::prepareSurfaces() {
    // The test, printing, or the page before may have left any of these as they please.
    markup::DrawingState& drawing = renderer_.state();
    drawing.hauteurPage = 0;
    drawing.surfaceDessin = &renderer_.window().pictureTexte();
    drawing.fenetreSource = &source_;
    drawing.enImpression = false;
    drawing.videoPage.clear();
}

void PageLoader::drawPage() {
    prepareSurfaces();
    source_.code().setText(bound_.code);
    renderer_.affichepage();
}

void PageLoader::showButtons() {
    view_.setChapterButtons(bound_.Checkpre, bound_.Checksui);
    view_.setPrintable(bound_.Checkimp);
    const auto field = records_ ? records_->field(QStringLiteral("sommaire")) : std::nullopt;
    const int summary = qMax(1, text::toInt32(coursedata::fieldNumber(field)).value_or(1));
    view_.setSummary(pageCode(summary),
                     summary == 1 ? QStringLiteral("Accueil") : QStringLiteral("Sommaire"));
}

} // namespace viewer
