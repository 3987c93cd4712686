#include "publish/page_data.h"

#include "publish/page_document.h"
#include "viewer/video_menu.h"

#include <QJsonArray>

namespace publish {

namespace {

QJsonArray entriesOf(const markup::LinkTable::Menu& menu, const SiteLinks& links) {
    QJsonArray entries;
    for (int i = menu.first; i <= menu.last; ++i) {
        const markup::LinkTable::MenuEntry& entry = *menu.slot(i);
        if (!entry.caption.isEmpty())
            entries.append(QJsonArray{entry.caption, links.ofCode(entry.target)});
    }
    return entries;
}

QJsonObject menusOf(const markup::DrawnPage& page, const SiteLinks& links) {
    QJsonObject menus;
    const auto& all = page.links.menusFlottants;
    for (int i = all.first; i <= all.last; ++i)
        if (const QJsonArray entries = entriesOf(*all.slot(i), links); !entries.isEmpty())
            menus.insert(QString::number(i), entries);
    return menus;
}

/// A page that has no film of its own may let choose among those of other pages.
QJsonArray filmMenuOf(const coursetool::DrawnCoursePage& page, const SiteLinks& links) {
    QJsonArray entries;
    for (const QString& caption :
         viewer::videoMenuCaptions(page.page.videoPage.value_or(QString())))
        if (const auto target = viewer::videoMenuTarget(caption, page.record.records(), {}))
            entries.append(QJsonArray{caption, links.ofCode(*target)});
    return entries;
}

} // namespace

QJsonObject pageData(const coursetool::DrawnCoursePage& page, const page::TextMetrics& metrics,
                     const SiteLinks& links, DrawingWriter& drawings) {
    QJsonObject data;
    data.insert(QStringLiteral("titre"), page.sheet.title);
    data.insert(QStringLiteral("dessin"),
                drawings.write(page.sheet, QStringLiteral("p%1-").arg(page.sheet.number),
                               [&](const page::LinkArea& link) { return links.of(link); }));
    data.insert(QStringLiteral("texte"),
                documentOf(page.page, page.sheet,
                           {page::SurfaceId::PictureTexte, page::SurfaceId::PictureIllus}, metrics,
                           links));
    if (const QJsonObject menus = menusOf(page.page, links); !menus.isEmpty())
        data.insert(QStringLiteral("menus"), menus);
    if (const QJsonArray films = filmMenuOf(page, links); !films.isEmpty())
        data.insert(QStringLiteral("films"), films);
    if (page.page.caption)
        data.insert(QStringLiteral("legende"), *page.page.caption);
    return data;
}

} // namespace publish
