#include "viewer/link_highlight.h"

namespace viewer {

namespace {

void emphasise(markup::LinkTable::Element& element, bool on) {
    element.link.font.bold = on;
    element.link.font.underline = on;
}

} // namespace

void resetLinkHighlight(markup::LinkTable::Elements& Labelien, int kept) {
    for (int index = 0; index <= markup::LinkTable::kLast; ++index)
        if (index != kept)
            emphasise(*Labelien.slot(index), false);
}

void highlightLink(markup::LinkTable::Elements& Labelien, int hovered) {
    resetLinkHighlight(Labelien, hovered);
    if (auto* element = Labelien.slot(hovered))
        emphasise(*element, true);
}

} // namespace viewer
