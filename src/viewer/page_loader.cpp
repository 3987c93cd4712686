#include "viewer/page_loader.h"

#include "page/course_name.h"
#include "page/numbers.h"
#include "text/rounding.h"
#include "viewer/page_code.h"

namespace viewer {

PageLoader::PageLoader(shell::SharedState& state, coursedata::BoundRecord& record, PageView& view,
                       const markup::DrawingTools& tools, markup::DrawnPage& page,
                       VideoDevice& video)
    : state_(state), record_(record), view_(view), tools_(tools), page_(page), video_(video),
      history_(state) {}

void PageLoader::takeOverOrderIndex() {
    if (const auto index = text::toInt32(page::leadingNumber(record_.TextIndex)))
        state_.CurrentOrderIndex = *index;
}

void PageLoader::showCurrentRecord() {
    view_.setPageVisible(false);
    view_.resetLinks();
    view_.hideScrollBarAndVideoFrame();
    view_.clearPictures();
    video_.close();
    view_.setCaption(page::kCourseName);
    recordVisit();
    drawPage();
    view_.fitPage();
    showButtons();
    view_.setPageVisible(true);
}

void PageLoader::recordVisit() {
    if (state_.HistoryRecording) {
        if (const auto page = text::toInt16(page::leadingNumber(record_.TextID)))
            history_.record(*page);
        view_.setForwardEnabled(false);
    }
    view_.setBackEnabled(history_.canGoBack());
}

void PageLoader::drawPage() {
    const markup::PageText text{record_.code, markup::DrawnAs::CoursePage, record_.Textitre};
    markup::drawPage(text, tools_, page_);
    view_.setTitle(record_.Textitre);
    if (page_.caption)
        view_.setCaption(*page_.caption);
    if (page_.videoPage)
        view_.showVideoFrame();
}

void PageLoader::showButtons() {
    view_.setChapterButtons(record_.Checkpre, record_.Checksui);
    view_.setPrintable(record_.Checkimp);
    const auto* records = record_.records();
    const auto field = records ? records->field(QStringLiteral("sommaire")) : std::nullopt;
    const int summary = qMax(1, text::toInt32(coursedata::fieldNumber(field)).value_or(1));
    view_.setSummary(pageCode(summary),
                     summary == 1 ? QStringLiteral("Accueil") : QStringLiteral("Sommaire"));
}

} // namespace viewer
