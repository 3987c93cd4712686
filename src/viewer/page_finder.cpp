#include "viewer/page_finder.h"

#include "look/page_panel.h"
#include "look/picture_box.h"
#include "page/twips.h"
#include "viewer/find_bar.h"

#include <limits>

namespace viewer {

namespace {

using page::kTwipsPerPixel;

/// Page around the current occurrence that comes into view with it: a line of running text.
constexpr int kAroundPx = 22;

QRectF scaled(const QRectF& rect, double factor) {
    return {rect.topLeft() * factor, rect.size() * factor};
}

/// What of a surface can be seen, in twips on it.
QRectF seen(const look::PictureBox& box) {
    const QRect area = box.shownArea();
    return scaled(area.translated(-box.inset(), -box.inset()), kTwipsPerPixel);
}

/// Before all that is on the page from a height on.
PageFind::Place startOfLine(double twips) {
    return {0, twips, std::numeric_limits<double>::lowest()};
}

const PageFind::Place kStart = startOfLine(std::numeric_limits<double>::lowest());

} // namespace

PageFinder::PageFinder(const Parts& parts) : parts_(parts) {
    parts_.bar.setActions(
        {[this] { typed(); }, [this] { next(); }, [this] { previous(); }, [this] { close(); }});
    parts_.panel.setFoot(&parts_.bar);
}

bool PageFinder::isOpen() const {
    return !parts_.bar.isHidden();
}

void PageFinder::open() {
    if (isOpen()) {
        parts_.bar.takeKeyboard();
        return;
    }
    const bool wasInView = isCurrentInView();
    parts_.panel.showFoot(true);
    parts_.bar.takeKeyboard();
    if (find_.sought().words.empty())
        typed();
    else if (wasInView)
        showCurrent(); // not below the bar
}

void PageFinder::close() {
    const bool hasKeyboard = parts_.bar.isAncestorOf(parts_.bar.window()->focusWidget());
    if (isOpen())
        parts_.panel.showFoot(false);
    if (hasKeyboard)
        parts_.boxes.front()->setFocus();
    search({}, kStart);
}

void PageFinder::typed() {
    search(typedWords(parts_.bar.text()), placeInView());
}

void PageFinder::next() {
    step(&PageFind::next);
}

void PageFinder::previous() {
    step(&PageFind::previous);
}

void PageFinder::step(void (PageFind::*walk)()) {
    if (find_.sought().words.empty())
        return open();
    (find_.*walk)();
    showMarks();
    showCurrent();
}

void PageFinder::mark(const FoundWords& words) {
    // Several words are no text that could have been typed.
    parts_.bar.setText(words.words.size() == 1 ? words.words.front() : QString());
    search(words, kStart);
}

void PageFinder::pageGoes() {
    isOpen() ? find_.forgetPage() : find_.clear();
}

void PageFinder::pageStands() {
    if (isOpen())
        search(find_.sought(), kStart);
}

void PageFinder::search(const FoundWords& words, const PageFind::Place& from) {
    std::vector<PageFind::Part> parts;
    for (const look::PictureBox* box : parts_.boxes)
        parts.push_back({box->surfaceId(), seen(*box)});
    find_.search(words, parts_.recording, parts_.metrics, parts, from);
    showMarks();
    showCurrent();
}

bool PageFinder::isCurrentInView() const {
    const auto current = find_.current();
    if (!current)
        return false;
    const PageFind::Found& one = find_.found()[*current];
    const double top = parts_.panel.viewTopPx() * kTwipsPerPixel;
    const double height = parts_.panel.viewHeightPx() * kTwipsPerPixel;
    return one.place.part > 0 || (one.area.top() < top + height && one.area.bottom() > top);
}

/// Where a search for other words starts: at the occurrence that a person is looking at, so that it
/// stays while its word is being typed, or at the top of what shows of the page.
PageFind::Place PageFinder::placeInView() const {
    if (isCurrentInView())
        return find_.found()[*find_.current()].place;
    return startOfLine(parts_.panel.viewTopPx() * kTwipsPerPixel);
}

void PageFinder::showMarks() {
    for (std::size_t part = 0; part < parts_.boxes.size(); ++part) {
        look::PictureBox::Marks marks;
        for (std::size_t index = 0; index < find_.found().size(); ++index)
            if (const PageFind::Found& one = find_.found()[index]; one.place.part == part) {
                const QRectF area = scaled(one.area, 1 / kTwipsPerPixel);
                if (index == find_.current())
                    marks.current = area;
                else
                    marks.others.push_back(area);
            }
        parts_.boxes[part]->setMarks(std::move(marks));
    }
    parts_.bar.setStatus(findStatus(find_), find_.current().has_value());
}

void PageFinder::showCurrent() {
    const auto current = find_.current();
    if (!current || find_.found()[*current].place.part > 0)
        return;
    const QRect area = scaled(find_.found()[*current].area, 1 / kTwipsPerPixel).toAlignedRect();
    parts_.panel.reveal(area.adjusted(0, -kAroundPx, 0, kAroundPx));
}

} // namespace viewer
