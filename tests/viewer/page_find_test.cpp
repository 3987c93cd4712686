#include "page/surface.h"
#include "support/fixed_metrics.h"
#include "support/printing.h"
#include "viewer/page_find.h"

#include <gmock/gmock.h>

namespace {

using page::SurfaceId;
using testing::ElementsAre;
using viewer::FoundWords;
using viewer::PageFind;

/// A surface on which a letter of 10 points is 100 twips wide and 200 high.
class Occurrences : public testing::Test {
protected:
    void print(double x, double y, const QString& text) {
        page.setPenX(x);
        page.setPenY(y);
        page.print(text);
    }
    /// Places as "x,y wxh", in order.
    QStringList find(const FoundWords& sought) const {
        QStringList places;
        for (const auto& [top, area] :
             viewer::occurrences(recording, SurfaceId::PictureTexte, metrics, sought))
            places.append(QStringLiteral("%1,%2 %3x%4")
                              .arg(area.x())
                              .arg(area.y())
                              .arg(area.width())
                              .arg(area.height()));
        return places;
    }
    QStringList find(const QString& typed) const { return find(viewer::typedWords(typed)); }

    page::Recording recording;
    test_support::FixedMetrics metrics;
    page::Surface page{SurfaceId::PictureTexte, 9000, metrics, recording};
};

TEST_F(Occurrences, runOverThePiecesOfALineInReadingOrder) {
    print(0, 400, QStringLiteral("la mole")); // drawn first, read last
    print(0, 0, QStringLiteral("réfr"));
    page.setBold(true);
    page.print(QStringLiteral("action"));
    page.setBold(false);
    page.print(QStringLiteral(" n"));
    page.setFontPoints(5);
    print(page.penX(), 120, QStringLiteral("12")); // an index
    page.setFontPoints(10);
    print(3000, 0, QStringLiteral("apart"));
    EXPECT_THAT(find(QStringLiteral("FRACT")), ElementsAre("200,0 500x200"));
    EXPECT_THAT(find(QStringLiteral("n12")), ElementsAre("1100,0 200x220"));
    EXPECT_THAT(find(QStringLiteral("2 ap")), ElementsAre("1250,0 1950x220")); // the gap is a blank
    EXPECT_THAT(find(QStringLiteral("la")), ElementsAre("0,400 200x200"));
    EXPECT_THAT(find(QStringLiteral("a")), ElementsAre("400,0 100x200", "3000,0 100x200",
                                                       "3200,0 100x200", "100,400 100x200"));
    EXPECT_THAT(find(QStringLiteral("apartla")), ElementsAre()); // never from line to line
}

TEST_F(Occurrences, foldWhatAKeyboardDoesNotHave) {
    print(0, 0, QStringLiteral("L’Été\u00A0: 10\u22123 µm"));
    page.setFace(QStringLiteral("Symbol"));
    print(0, 900, QStringLiteral("lm")); // lambda, mu
    const QString first = QStringLiteral("200,0 300x200");
    EXPECT_THAT(find(QStringLiteral("ete")), ElementsAre(first)); // no accent typed: none needed
    EXPECT_THAT(find(QStringLiteral("été")), ElementsAre(first));
    EXPECT_THAT(find(QStringLiteral("etè")), ElementsAre()); // one typed: all are meant
    EXPECT_THAT(find({{QStringLiteral("ete")}, false}), ElementsAre());
    EXPECT_THAT(find(QStringLiteral(" l'été : 10-3 ")), ElementsAre("0,0 1200x200"));
    EXPECT_THAT(find(QStringLiteral("Λ")), ElementsAre("0,900 100x300"));
    EXPECT_THAT(find(QStringLiteral("µ")), ElementsAre("1300,0 100x200", "100,900 100x300"));
}

TEST_F(Occurrences, thatOverlapAreOneAndThoseSideBySideTwo) {
    print(0, 0, QStringLiteral("photographie"));
    EXPECT_THAT(
        find({{QStringLiteral("graphie"), QStringLiteral("photo"), QStringLiteral("tog")}, true}),
        ElementsAre("0,0 1200x200"));
    EXPECT_THAT(find({{QStringLiteral("gra"), QStringLiteral("photo"), QStringLiteral("")}, true}),
                ElementsAre("0,0 500x200", "500,0 300x200"));
}

TEST_F(Occurrences, leaveOutWhatWasWipedButNotTheLinks) {
    page::LinkOperation link;
    link.x = 500;
    link.y = 300;
    link.caption = QStringLiteral("mot\r\nun mot");
    recording.add(link);
    print(0, 0, QStringLiteral("mot"));
    page.clear();
    EXPECT_THAT(find(QStringLiteral("mot")), ElementsAre("500,300 300x200", "800,500 300x200"));
}

TEST_F(Occurrences, ofAHostilePageAreBounded) {
    for (int line = 0; line < 100; ++line)
        print(0, line * 300, QStringLiteral("e").repeated(15'000));
    EXPECT_EQ(viewer::occurrences(recording, SurfaceId::PictureTexte, metrics,
                                  {{QStringLiteral("e")}, true})
                  .size(),
              viewer::kMaxOccurrences);
    print(0, 30'000, QStringLiteral("fin")); // behind more text than is searched
    EXPECT_THAT(find(QStringLiteral("fin")), ElementsAre());
}

TEST_F(Occurrences, areWalkedFromAPlaceRoundAllParts) {
    page::Surface beside(SurfaceId::PictureIllus, 2280, metrics, recording);
    for (const double y : {0, 300, 600, 5000}) // the last is below what can be seen
        print(0, y, QStringLiteral("mot"));
    beside.print(QStringLiteral("mot"));
    const QRectF seen(0, 0, 9000, 4000);
    PageFind find;
    const auto search = [&](double from) {
        find.search({{QStringLiteral("mot")}, true}, recording, metrics,
                    {{SurfaceId::PictureTexte, seen}, {SurfaceId::PictureIllus, seen}},
                    {0, from, 0});
        return viewer::findStatus(find);
    };
    EXPECT_EQ(viewer::findStatus(find), QString());
    EXPECT_EQ(search(10), QStringLiteral("2 sur 4"));
    EXPECT_EQ(search(300), QStringLiteral("2 sur 4"));
    EXPECT_EQ(search(601), QStringLiteral("4 sur 4")); // the one beside
    find.next();
    EXPECT_EQ(viewer::findStatus(find), QStringLiteral("1 sur 4"));
    find.previous();
    EXPECT_EQ(viewer::findStatus(find), QStringLiteral("4 sur 4"));
    recording.clear();
    EXPECT_EQ(search(0), QStringLiteral("Aucune occurrence"));
    find.next();
    EXPECT_EQ(find.current(), std::nullopt);
}

} // namespace
