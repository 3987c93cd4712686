#include "page/link_view.h"

#include <QStringList>

#include <algorithm>
#include <map>

namespace page {

std::vector<const LinkOperation*> standingLinks(const Recording& recording) {
    std::map<std::pair<LinkControl, int>, const LinkOperation*> last;
    std::vector<const LinkOperation*> links;
    for (const Operation& operation : recording.operations())
        if (const auto* link = std::get_if<LinkOperation>(&operation)) {
            last[{link->control, link->index}] = link;
            links.push_back(link);
        }
    std::erase_if(links, [&](const LinkOperation* link) {
        return last[{link->control, link->index}] != link;
    });
    return links;
}

std::vector<TextOperation> captionLines(const LinkOperation& link, const TextMetrics& metrics) {
    std::vector<TextOperation> lines;
    const double lineHeight = metrics.height(link.font);
    double y = link.y;
    for (const QString& line : link.caption.split(QStringLiteral("\r\n"))) {
        lines.push_back(
            {link.surface, link.x, y, line, link.font, link.ink, metrics.width(link.font, line)});
        y += lineHeight;
    }
    return lines;
}

CaptionExtent captionExtent(const QString& caption, const Font& font, const TextMetrics& metrics) {
    CaptionExtent extent{0, 0};
    for (const QStringView line : QStringView(caption).split(QStringLiteral("\r\n"))) {
        extent.width = std::max(extent.width, metrics.width(font, line));
        extent.height += metrics.height(font);
    }
    return extent;
}

} // namespace page
