#include "viewer/link_name.h"
#include "viewer/link_order.h"

#include <gmock/gmock.h>

namespace {

using page::LinkControl;
using page::LinkOperation;
using page::SurfaceId;

TEST(LinkName, saysWhatTheLinkSaysOrLeadsTo) {
    struct Row {
        LinkControl control;
        QString caption, face, tooltip, tag, name;
    };
    for (const Row& row : {
             Row{LinkControl::Labelien,
                 QStringLiteral("Voir la\r\npage 2"),
                 QStringLiteral("Arial"),
                 {},
                 QStringLiteral("PAG002"),
                 QStringLiteral("Voir la page 2")},
             Row{LinkControl::Labelien,
                 QStringLiteral("a\r\nb"),
                 QStringLiteral("symbol"),
                 {},
                 QStringLiteral("PAG002"),
                 QStringLiteral("α β")},
             Row{LinkControl::Imagelien,
                 {},
                 {},
                 QStringLiteral(" Une  aide "),
                 QStringLiteral("PAG002"),
                 QStringLiteral("Une aide")},
             Row{LinkControl::Imagelien,
                 {},
                 {},
                 {},
                 QStringLiteral("PAG002"),
                 QStringLiteral("Lien vers la page 2")},
             Row{LinkControl::Imagelien,
                 {},
                 {},
                 {},
                 QStringLiteral("EXO011"),
                 QStringLiteral("Test du chapitre 11")},
             Row{LinkControl::Imagelien,
                 {},
                 {},
                 {},
                 QStringLiteral("EXE070"),
                 QStringLiteral("Lancer une simulation")},
             Row{LinkControl::Imagelien,
                 {},
                 {},
                 {},
                 QStringLiteral("FLOTTANT"),
                 QStringLiteral("Menu")},
             Row{LinkControl::Labelien,
                 QStringLiteral(" "),
                 QStringLiteral("Arial"),
                 {},
                 QStringLiteral("pag002"),
                 QStringLiteral("Lien")},
         }) {
        LinkOperation link;
        link.control = row.control;
        link.caption = row.caption;
        link.font.face = row.face;
        link.tooltip = row.tooltip;
        link.tag = row.tag;
        EXPECT_EQ(viewer::linkName(link), row.name);
    }
}

TEST(LinkOrder, runsAlongTheLines) {
    struct Place {
        SurfaceId surface;
        double x, y, height;
    };
    // In reading order; an exponent above its line, a tall picture beside three short lines.
    const Place places[] = {
        {SurfaceId::Titre, 0, 300, 300},          {SurfaceId::PictureTexte, 0, 0, 240},
        {SurfaceId::PictureTexte, 900, -60, 150}, {SurfaceId::PictureTexte, 1000, 30, 240},
        {SurfaceId::PictureTexte, 0, 300, 900},   {SurfaceId::PictureTexte, 1000, 320, 240},
        {SurfaceId::PictureTexte, 800, 600, 240}, {SurfaceId::PictureTexte, 900, 900, 240},
        {SurfaceId::PictureIllus, 0, 0, 240},
    };
    std::vector<LinkOperation> links;
    for (const Place& place : places) {
        LinkOperation link;
        link.surface = place.surface;
        link.x = place.x;
        link.y = place.y;
        link.height = place.height;
        link.index = static_cast<int>(links.size());
        links.push_back(link);
    }
    std::vector<const LinkOperation*> shuffled;
    for (const std::size_t index : {8, 3, 5, 0, 7, 2, 6, 1, 4})
        shuffled.push_back(&links[index]);
    std::vector<int> order;
    for (const LinkOperation* link : viewer::inReadingOrder(shuffled))
        order.push_back(link->index);
    EXPECT_THAT(order, testing::ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8));
}

} // namespace
