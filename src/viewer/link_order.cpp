#include "viewer/link_order.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace viewer {

namespace {

using Link = const page::LinkOperation*;

int rank(page::SurfaceId surface) {
    switch (surface) {
    case page::SurfaceId::Titre:
        return 0;
    case page::SurfaceId::PictureIllus:
        return 2;
    default:
        return 1;
    }
}

/// Whether a link stands on the line of its topmost one: exponents stand a little above the words
/// next to them, and some pictures a little below.
bool isBeside(Link topmost, Link link) {
    return link->surface == topmost->surface &&
           link->y - topmost->y < std::min(link->height, topmost->height) / 2;
}

} // namespace

std::vector<Link> inReadingOrder(std::vector<Link> links) {
    std::stable_sort(links.begin(), links.end(), [](Link a, Link b) {
        return std::pair(rank(a->surface), a->y) < std::pair(rank(b->surface), b->y);
    });
    for (auto line = links.begin(); line != links.end();) {
        const auto next = std::find_if_not(std::next(line), links.end(),
                                           [&](Link link) { return isBeside(*line, link); });
        std::stable_sort(line, next, [](Link a, Link b) { return a->x < b->x; });
        line = next;
    }
    return links;
}

bool isPictureOf(const page::LinkOperation& picture, const page::LinkOperation& words) {
    return picture.control == page::LinkControl::Imagelien &&
           words.control == page::LinkControl::Labelien && picture.surface == words.surface &&
           picture.tag == words.tag;
}

} // namespace viewer
