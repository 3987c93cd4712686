// Pages as they stand in pages of HTML.

#include "output/svg/svg_file.h"
#include "platform/sheets.h"
#include "publish/font_subset.h"
#include "publish/web_faces.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

struct PageDrawing : testing::Test, SheetCase {
    QByteArray drawing() const {
        output::SvgForm form;
        form.isInPage = true;
        form.idPrefix = QStringLiteral("p1-");
        form.address = [](const page::LinkArea& link) { return u'#' + link.tag; };
        return output::svgDocument(sheet(), fonts, form);
    }

    /// What each text says, its runs one after the other.
    QStringList lines() const {
        QStringList lines;
        const QString svg = QString::fromUtf8(drawing());
        static const QRegularExpression text(QStringLiteral("<text.*?</text>"));
        static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
        for (const QRegularExpressionMatch& match : text.globalMatch(svg))
            lines.append(match.captured().remove(tag));
        return lines;
    }
};

TEST_F(PageDrawing, hasALineOfTextAsOne) {
    surface.setFontPoints(12);
    printAt(150, 150, QStringLiteral("un rayon "));
    surface.setBold(true);
    surface.print(QStringLiteral("incident"));
    surface.setBold(false);
    surface.print(QStringLiteral(" arrive"));
    // Far to the right is a column of its own; closer there is a blank between the words.
    const double end = surface.penX();
    printAt(end + 60, 150, QStringLiteral("ici"));
    printAt(end + 1500, 150, QStringLiteral("(1)"));
    printAt(150, 600, QStringLiteral("dessous"));
    EXPECT_THAT(lines(), ElementsAre(QStringLiteral("un rayon incident arrive ici"),
                                     QStringLiteral("(1)"), QStringLiteral("dessous")));
}

TEST_F(PageDrawing, keepsWhatLiesOverAText) {
    surface.setFontPoints(12);
    printAt(150, 150, QStringLiteral("caché "));
    const double end = surface.penX();
    recording.add(page::FillOperation{page::SurfaceId::PictureTexte, 0, 0, end, 600, 0xffffffff,
                                      page::FillMode::Copy});
    printAt(end, 150, QStringLiteral("vu"));
    EXPECT_THAT(lines(), ElementsAre(QStringLiteral("caché "), QStringLiteral("vu")));
}

TEST_F(PageDrawing, tellsWhichLinkIsWhich) {
    page::LinkOperation link;
    link.tag = QStringLiteral("PAG012");
    link.caption = QStringLiteral("la <loi>");
    link.width = 900;
    link.height = 300;
    recording.add(link);
    const QByteArray svg = drawing();
    EXPECT_TRUE(svg.contains("<a href=\"#PAG012\" data-link=\"0\"")) << svg.constData();
    EXPECT_TRUE(svg.contains("la &lt;loi&gt;"));
    EXPECT_FALSE(svg.contains("xlink:"));
    EXPECT_FALSE(svg.contains("style=")) << "a strict policy leaves such styles out";
    EXPECT_TRUE(svg.contains("id=\"p1-c1\""));
}

TEST_F(PageDrawing, bringsTheLettersThatItNeeds) {
    const page::Font font;
    const QByteArray& file = page::FontBook::faceSource(font, 0).file;
    const QByteArray few = publish::fontSubset(file, {U'a', U'é'});
    const QByteArray more = publish::fontSubset(file, {U'a', U'é', U'b', U'c', U'd', U'Ω'});
    EXPECT_TRUE(few.startsWith("wOF2"));
    EXPECT_LT(few.size(), more.size());
    EXPECT_LT(more.size(), file.size() / 20);
    EXPECT_TRUE(publish::fontSubset(file, {U'\u4E2D'}).isEmpty()) << "a letter it does not have";
    EXPECT_TRUE(publish::fontSubset("no font", {U'a'}).isEmpty());
    EXPECT_FALSE(publish::faceStyle(file).bold);
    EXPECT_TRUE(publish::faceStyle(page::FontBook::faceSource({.bold = true}, 0).file).bold);
    EXPECT_EQ(publish::WebFaces::families(QStringLiteral("Arial")),
              QStringLiteral("cours-sans,cours-serif,cours-signes,cours-symboles"));
}

} // namespace
