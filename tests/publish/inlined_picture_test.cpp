#include "page/pictures/picture_file.h"
#include "publish/inlined_picture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

struct InlinedPicture : testing::Test {
    QStringList drawn;

    QByteArray inlined(const QByteArray& inside, const QByteArray& root = {}) {
        const auto picture = page::pictureFrom(
            "<svg xmlns=\"http://www.w3.org/2000/svg\" "
            "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"60\" height=\"30\" " +
            root + ">" + inside + "</svg>");
        EXPECT_TRUE(picture);
        drawn.clear();
        return publish::inlinedPicture(
            *picture, QStringLiteral("p1-i1"),
            [](const QString& face) { return QStringLiteral("of ") + face; },
            [&](const QString& face, bool bold, bool italic, const QString& text) {
                drawn.append(face + (bold ? u'b' : u'-') + (italic ? u'i' : u'-') + text);
            });
    }
};

TEST_F(InlinedPicture, takesOverWhatDrawsAndNothingElse) {
    struct Row {
        const char* inside;
        const char* lost;
    };
    const Row rows[] = {
        {"<script>harm()</script><rect/>", "harm"},
        {"<rect onclick=\"harm()\" onload='harm()'/>", "harm"},
        {"<rect fill=\"url(http://harm/)\"/>", "harm"},
        {"<rect stroke=\"url('https://harm/#a')\"/>", "harm"},
        {"<use xlink:href=\"http://harm/a.svg#b\"/>", "harm"},
        {"<use href=\"data:image/svg+xml,harm\"/>", "harm"},
        {"<set attributeName=\"onclick\" to=\"harm()\"/><rect/>", "harm"},
        {"<animate attributeName=\"href\" values=\"javascript:harm()\"/><rect/>", "harm"},
        {"<title>harm</title><desc>harm</desc><rect/>", "harm"},
        {"<rect data-x=\"harm\" formaction=\"harm\"/>", "harm"},
    };
    for (const Row& row : rows) {
        const QByteArray found = inlined(row.inside);
        EXPECT_FALSE(found.contains(row.lost)) << row.inside << '\n' << found.constData();
        EXPECT_TRUE(found.contains("<rect") || found.contains("<use")) << row.inside;
    }
}

TEST_F(InlinedPicture, leavesWhatNeedsMoreInAFile) {
    for (const char* inside :
         {"<style>rect{fill:url(javascript:harm())}</style><rect/>", "<rect style=\"fill:red\"/>",
          "<foreignObject><p>a</p></foreignObject>", "<a xlink:href=\"#x\"><rect/></a>",
          "<image xlink:href=\"x.png\"/>", "<rect class=\"a\"/>", "<rect clip-path=\"url(#a)\"/>",
          "<filter id=\"a\"/>", "<svg:script xmlns:svg=\"x\"/><iframe/>"})
        EXPECT_TRUE(inlined(inside).isEmpty()) << inside;
}

TEST_F(InlinedPicture, keepsItsNamesToItself) {
    const QByteArray found =
        inlined("<defs><linearGradient id=\"a\"><stop offset=\"0\"/></linearGradient></defs>"
                "<rect fill=\"url(#a)\"/><use xlink:href=\"#a\"/>",
                "viewBox=\"0 0 6 3\"");
    for (const char* part : {"id=\"p1-i1\"", "id=\"p1-i1-a\"", "url(#p1-i1-a)", "href=\"#p1-i1-a\"",
                             "viewBox=\"0 0 6 3\"", "width=\"1\""})
        EXPECT_TRUE(found.contains(part)) << part << found.constData();
    EXPECT_FALSE(found.contains("60"));
}

TEST_F(InlinedPicture, isWrittenInTheFacesOfPages) {
    const QByteArray found =
        inlined("<g font-family=\"Times New Roman, serif\" font-style=\"italic\"><text>v</text>"
                "<text font-family=\"Arial\" font-weight=\"bold\">m/s &lt;b&gt;</text></g>");
    EXPECT_THAT(
        drawn, ElementsAre(QStringLiteral("Times new roman-iv"), QStringLiteral("Arialbim/s <b>")));
    EXPECT_TRUE(found.contains("font-family=\"of Times new roman\""));
    EXPECT_TRUE(found.contains("&lt;b&gt;"));
}

} // namespace
