// The main window read aloud.

#include "look/page_panel.h"
#include "look/picture_box.h"
#include "viewer/chapter_bar.h"
#include "viewer/multim.h"
#include "viewer/page_reader.h"
#include "viewer/page_selection.h"

#include <QEvent>

#include <iterator>

namespace viewer {

namespace {

/// The button of the video that pauses it.
constexpr int kPause = 2;

/// All of a surface that stands beside the page: its place there is none of the page's.
std::vector<page::SpokenPart> partsBeside(const look::PictureBox& box) {
    std::vector<page::SpokenPart> parts = spokenParts(box.readablePage());
    for (page::SpokenPart& part : parts)
        part.area = {};
    return parts;
}

} // namespace

/// A window over this one has the word, and the exit screen the last.
bool Multim::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        stopReading();
    return QWidget::event(event);
}

void Multim::beReadBy(ReadingAloud& voice) {
    reader_ = std::make_unique<PageReader>(
        voice, PageReader::Window{*PictureTEXTE_, *panel_,
                                  [this](look::OutcomeLine::Kind kind, const QString& line,
                                         const look::LineAction& action) {
                                      Framebase_->showLine(kind, line, action);
                                  },
                                  [this] { Framebase_->clearLine(); }});
}

/// Begins, or ends what goes on.
void Multim::readAloud() {
    if (stopReading())
        return;
    std::vector<page::SpokenPart> parts = partsToRead();
    if (videoPlays_ && !parts.empty())
        work([this] { parts_->collaborators.video.press(kPause); });
    reader_->read(std::move(parts));
}

/// The page from what is selected on, otherwise from what is at the top of the view: with its
/// title, from the very top. What stands beside the page comes last.
std::vector<page::SpokenPart> Multim::partsToRead() const {
    const auto selected = selection_->start();
    const int top = selected ? 0 : panel_->scrolled();
    std::vector<page::SpokenPart> parts;
    const auto add = [&parts](std::vector<page::SpokenPart> more) {
        std::move(more.begin(), more.end(), std::back_inserter(parts));
    };
    if (PictureTEXTE_->isHidden())
        return parts;
    if (!selected && top == 0)
        add(partsBeside(*titre_));
    add(spokenParts(PictureTEXTE_->readablePage(),
                    {selected.value_or(0), static_cast<double>(top)}));
    add(partsBeside(*PICTUREILLUS_));
    return parts;
}

/// Whether anything was being read.
bool Multim::stopReading() {
    return reader_ && reader_->stop();
}

} // namespace viewer
