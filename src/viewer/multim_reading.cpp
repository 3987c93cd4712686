// The main window read aloud.

#include "look/page_panel.h"
#include "look/picture_box.h"
#include "page/twips.h"
#include "viewer/chapter_bar.h"
#include "viewer/multim.h"
#include "viewer/page_selection.h"
#include "viewer/reading_aloud.h"

#include <QEvent>

#include <algorithm>
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

/// Begins, or ends what goes on.
void Multim::readAloud() {
    if (stopReading())
        return;
    std::vector<page::SpokenPart> parts = partsToRead();
    if (parts.empty())
        return Framebase_->showLine(look::OutcomeLine::Kind::Warning,
                                    QStringLiteral("Il n’y a rien à lire ici."));
    if (videoPlays_)
        work([this] { parts_->collaborators.video.press(kPause); });
    Framebase_->showLine(look::OutcomeLine::Kind::Voice, QStringLiteral("Lecture à voix haute."),
                         {QStringLiteral("Arrêter"), [this] { stopReading(); }});
    parts_->collaborators.reading.read(
        std::move(parts),
        {[this](const page::SpokenPart& part) { follow(part); }, [this] { readingEnded(); },
         [this] {
             readingEnded();
             Framebase_->showLine(look::OutcomeLine::Kind::Warning,
                                  QStringLiteral("Pas de lecture à voix haute : cet ordinateur "
                                                 "n’a pas de voix française."));
         }});
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

/// Shows what is being said; of what is taller than the view, its beginning.
void Multim::follow(const page::SpokenPart& part) {
    const QRectF area(part.area.topLeft() / page::kTwipsPerPixel,
                      part.area.size() / page::kTwipsPerPixel);
    PictureTEXTE_->setSpoken(area);
    if (area.isNull())
        return;
    QRect shown = area.toAlignedRect();
    shown.setHeight(std::min(shown.height(), panel_->viewHeightPx() * 3 / 4));
    panel_->reveal(shown);
}

/// Whether anything was being read.
bool Multim::stopReading() {
    const bool stopped = parts_ && parts_->collaborators.reading.stop();
    if (stopped)
        readingEnded();
    return stopped;
}

void Multim::readingEnded() {
    PictureTEXTE_->setSpoken({});
    Framebase_->clearLine();
}

} // namespace viewer
