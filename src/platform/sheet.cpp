#include "platform/sheet.h"

#include "platform/link_view.h"
#include "platform/twips.h"

#include <algorithm>

namespace platform {

namespace {

/// Keeps what is drawn and drops what was wiped since.
struct Collect {
    std::vector<Operation>& kept;

    void operator()(const TextOperation& text) const { kept.emplace_back(text); }
    void operator()(const LineOperation& line) const { kept.emplace_back(line); }
    void operator()(const FillOperation& fill) const { kept.emplace_back(fill); }
    void operator()(const PictureOperation& picture) const { kept.emplace_back(picture); }
    void operator()(const ClearOperation& clear) const {
        std::erase_if(kept, [&](const Operation& operation) {
            return std::visit(
                [&](const auto& drawn) {
                    if constexpr (requires { drawn.surface; })
                        return drawn.surface == clear.surface;
                    else
                        return false;
                },
                operation);
        });
    }
    template <class Other>
    void operator()(const Other&) const {}
};

/// A picture link, or the empty frame of one whose symbol is missing.
void drawPictureLink(const LinkOperation& link, std::vector<Operation>& operations) {
    if (link.picture) {
        operations.emplace_back(PictureOperation{link.surface, link.x, link.y, link.width,
                                                 link.height, link.picture, link.key, true});
        return;
    }
    const double right = link.x + link.width - kTwipsPerPixel;
    const double foot = link.y + link.height - kTwipsPerPixel;
    const auto edge = [&](double x1, double y1, double x2, double y2) {
        operations.emplace_back(LineOperation{link.surface, x1, y1, x2, y2, link.ink, 1});
    };
    edge(link.x, link.y, right, link.y);
    edge(link.x, foot, right, foot);
    edge(link.x, link.y, link.x, foot);
    edge(right, link.y, right, foot);
}

} // namespace

void putOnSheet(const Recording& recording, const TextMetrics& metrics, Sheet& sheet) {
    for (const Operation& operation : recording.operations())
        std::visit(Collect{sheet.operations}, operation);
    for (const LinkOperation* link : standingLinks(recording)) {
        if (link->control == LinkControl::Imagelien)
            drawPictureLink(*link, sheet.operations);
        else
            for (TextOperation& line : captionLines(*link, metrics))
                sheet.operations.emplace_back(std::move(line));
        sheet.links.push_back(
            {link->surface, link->x, link->y, link->width, link->height, link->tag, link->tooltip});
    }
}

} // namespace platform
