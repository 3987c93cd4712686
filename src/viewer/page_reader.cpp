#include "viewer/page_reader.h"

#include "look/page_panel.h"
#include "look/picture_box.h"
#include "page/twips.h"
#include "viewer/reading_aloud.h"

#include <algorithm>
#include <utility>

namespace viewer {

using Kind = look::OutcomeLine::Kind;

PageReader::PageReader(ReadingAloud& voice, Window window)
    : voice_(voice), window_(std::move(window)) {}

void PageReader::read(std::vector<page::SpokenPart> parts) {
    if (parts.empty())
        return window_.tell(Kind::Warning, QStringLiteral("Il n’y a rien à lire ici."), {});
    window_.tell(Kind::Voice, QStringLiteral("Lecture à voix haute."),
                 {QStringLiteral("Arrêter"), [this] { stop(); }});
    voice_.read(std::move(parts),
                {[this](const page::SpokenPart& part) { follow(part); }, [this] { end(); },
                 [this] {
                     end();
                     window_.tell(Kind::Warning,
                                  QStringLiteral("Pas de lecture à voix haute : cet ordinateur "
                                                 "n’a pas de voix française."),
                                  {});
                 }});
}

bool PageReader::stop() {
    const bool stopped = voice_.stop();
    if (stopped)
        end();
    return stopped;
}

/// Shows what is being said; of what is taller than the view, its beginning.
void PageReader::follow(const page::SpokenPart& part) {
    const QRectF area(part.area.topLeft() / page::kTwipsPerPixel,
                      part.area.size() / page::kTwipsPerPixel);
    window_.surface.setSpoken(area);
    if (area.isNull())
        return;
    QRect shown = area.toAlignedRect();
    shown.setHeight(std::min(shown.height(), window_.panel.viewHeightPx() * 3 / 4));
    window_.panel.reveal(shown);
}

void PageReader::end() {
    window_.surface.setSpoken({});
    window_.tellNoMore();
}

} // namespace viewer
