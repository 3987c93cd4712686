#include "publish/page_document.h"

#include "page/link_view.h"
#include "page/readable_page.h"
#include "viewer/link_name.h"

#include <algorithm>

namespace publish {

namespace {

using page::BlockKind;
using page::ReadableBlock;

/// The page's title is the heading above all others.
constexpr int kHighestLevel = 2;
constexpr int kLowestLevel = 6;

class DocumentWriter {
public:
    DocumentWriter(const page::Sheet& sheet, const SiteLinks& links)
        : sheet_(sheet), links_(links) {}

    void write(const ReadableBlock& block) {
        switch (block.kind) {
        case BlockKind::Heading:
            return element(QStringLiteral("h%1").arg(std::clamp(block.level + kHighestLevel - 1,
                                                                kHighestLevel, kLowestLevel)),
                           block);
        case BlockKind::Paragraph:
            return element(QStringLiteral("p"), block);
        case BlockKind::List:
            return element(QStringLiteral("ul"), block);
        case BlockKind::ListItem:
            return element(QStringLiteral("li"), block);
        case BlockKind::Table:
            return element(QStringLiteral("table"), block);
        case BlockKind::Row:
            return element(QStringLiteral("tr"), block);
        case BlockKind::Cell:
            return element(QStringLiteral("td"), block);
        case BlockKind::Picture:
            if (!block.title.isEmpty())
                html_ += QStringLiteral("<p role=\"img\" aria-label=\"") +
                         block.title.toHtmlEscaped() + QStringLiteral("\"></p>");
        }
    }

    /// The links that are pictures.
    void writePictures(const std::vector<const page::LinkOperation*>& standing) {
        QString items;
        for (std::size_t i = 0; i < standing.size() && i < sheet_.links.size(); ++i)
            if (standing[i]->control == page::LinkControl::Imagelien)
                if (const QString to = links_.of(sheet_.links[i]); !to.isEmpty())
                    items += QStringLiteral("<li>") + linkStart(to, i) +
                             viewer::linkName(*standing[i]).toHtmlEscaped() +
                             QStringLiteral("</a></li>");
        if (!items.isEmpty())
            html_ += QStringLiteral("<ul>") + items + QStringLiteral("</ul>");
    }

    const QString& html() const { return html_; }

private:
    void element(const QString& name, const ReadableBlock& block) {
        html_ += u'<' + name + u'>';
        for (const page::ReadableLine& line : block.lines) {
            if (!html_.endsWith(u' ') && !html_.endsWith(u'>'))
                html_ += u' ';
            for (const page::ReadablePiece& piece : line.pieces)
                write(piece);
        }
        for (const ReadableBlock& child : block.children)
            write(child);
        html_ += QStringLiteral("</") + name + u'>';
    }

    void write(const page::ReadablePiece& piece) {
        const QString text = textOf(piece);
        const auto index = piece.source->isCaption ? linkOf(piece) : std::nullopt;
        if (!index) {
            html_ += text;
            return;
        }
        const QString to = links_.of(sheet_.links[*index]);
        html_ += to.isEmpty() ? text : linkStart(to, *index) + text + QStringLiteral("</a>");
    }

    static QString textOf(const page::ReadablePiece& piece) {
        const QString text = piece.linear.toHtmlEscaped();
        if (!piece.source->isFormula || piece.spoken == piece.linear)
            return text;
        return QStringLiteral("<span role=\"math\" aria-label=\"") + piece.spoken.toHtmlEscaped() +
               QStringLiteral("\">") + text + QStringLiteral("</span>");
    }

    static QString linkStart(const QString& to, std::size_t index) {
        return QStringLiteral("<a href=\"%1\" data-link=\"%2\">").arg(to).arg(index);
    }

    /// Which link of the sheet a caption is.
    std::optional<std::size_t> linkOf(const page::ReadablePiece& piece) const {
        for (std::size_t i = 0; i < sheet_.links.size(); ++i) {
            const page::LinkArea& link = sheet_.links[i];
            if (link.surface == piece.source->surface && link.tag == piece.source->tag &&
                QRectF(link.x, link.y, link.width, link.height).intersects(piece.area))
                return i;
        }
        return std::nullopt;
    }

    const page::Sheet& sheet_;
    const SiteLinks& links_;
    QString html_;
};

} // namespace

QString documentOf(const markup::DrawnPage& page, const page::Sheet& sheet,
                   const std::vector<page::SurfaceId>& surfaces, const page::TextMetrics& metrics,
                   const SiteLinks& links) {
    const auto layOut = [&](const page::LinkOperation& link) {
        return page::captionLines(link, metrics);
    };
    DocumentWriter writer(sheet, links);
    for (const page::SurfaceId surface : surfaces) {
        const page::ReadablePage readable(page.recording, surface, layOut);
        for (const ReadableBlock& block : readable.blocks())
            writer.write(block);
    }
    writer.writePictures(page::standingLinks(page.recording));
    return writer.html();
}

} // namespace publish
