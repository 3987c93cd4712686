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
    print(0, 400, u"la mole"_qs); // drawn first, read last
    print(0, 0, u"réfr"_qs);
    page.setBold(true);
    page.print(u"action"_qs);
    page.setBold(false);
    page.print(u" n"_qs);
    page.setFontPoints(5);
    print(page.penX(), 120, u"12"_qs); // an index
    page.setFontPoints(10);
    print(3000, 0, u"apart"_qs);
    EXPECT_THAT(find(u"FRACT"_qs), ElementsAre("200,0 500x200"));
    EXPECT_THAT(find(u"n12"_qs), ElementsAre("1100,0 200x220"));
    EXPECT_THAT(find(u"2 ap"_qs), ElementsAre("1250,0 1950x220")); // the gap is a blank
    EXPECT_THAT(find(u"la"_qs), ElementsAre("0,400 200x200"));
    EXPECT_THAT(find(u"a"_qs), ElementsAre("400,0 100x200", "3000,0 100x200", "3200,0 100x200",
                                           "100,400 100x200"));
    EXPECT_THAT(find(u"apartla"_qs), ElementsAre()); // never from line to line
}

TEST_F(Occurrences, foldWhatAKeyboardDoesNotHave) {
    print(0, 0, u"L’Été\u00A0: 10\u22123 µm"_qs);
    page.setFace(u"Symbol"_qs);
    print(0, 900, u"lm"_qs); // lambda, mu
    const QString first = u"200,0 300x200"_qs;
    EXPECT_THAT(find(u"ete"_qs), ElementsAre(first)); // no accent typed: none needed
    EXPECT_THAT(find(u"été"_qs), ElementsAre(first));
    EXPECT_THAT(find(u"etè"_qs), ElementsAre()); // one typed: all are meant
    EXPECT_THAT(find({{u"ete"_qs}, false}), ElementsAre());
    EXPECT_THAT(find(u" l'été : 10-3 "_qs), ElementsAre("0,0 1200x200"));
    EXPECT_THAT(find(u"Λ"_qs), ElementsAre("0,900 100x300"));
    EXPECT_THAT(find(u"µ"_qs), ElementsAre("1300,0 100x200", "100,900 100x300"));
}

TEST_F(Occurrences, thatOverlapAreOneAndThoseSideBySideTwo) {
    print(0, 0, u"photographie"_qs);
    EXPECT_THAT(find({{u"graphie"_qs, u"photo"_qs, u"tog"_qs}, true}), ElementsAre("0,0 1200x200"));
    EXPECT_THAT(find({{u"gra"_qs, u"photo"_qs, u""_qs}, true}),
                ElementsAre("0,0 500x200", "500,0 300x200"));
}

TEST_F(Occurrences, leaveOutWhatWasWipedButNotTheLinks) {
    page::LinkOperation link;
    link.x = 500;
    link.y = 300;
    link.caption = u"mot\r\nun mot"_qs;
    recording.add(link);
    print(0, 0, u"mot"_qs);
    page.clear();
    EXPECT_THAT(find(u"mot"_qs), ElementsAre("500,300 300x200", "800,500 300x200"));
}

TEST_F(Occurrences, ofAHostilePageAreBounded) {
    for (int line = 0; line < 100; ++line)
        print(0, line * 300, u"e"_qs.repeated(15'000));
    EXPECT_EQ(
        viewer::occurrences(recording, SurfaceId::PictureTexte, metrics, {{u"e"_qs}, true}).size(),
        viewer::kMaxOccurrences);
    print(0, 30'000, u"fin"_qs); // behind more text than is searched
    EXPECT_THAT(find(u"fin"_qs), ElementsAre());
}

TEST_F(Occurrences, areWalkedFromAPlaceRoundAllParts) {
    page::Surface beside(SurfaceId::PictureIllus, 2280, metrics, recording);
    for (const double y : {0, 300, 600, 5000}) // the last is below what can be seen
        print(0, y, u"mot"_qs);
    beside.print(u"mot"_qs);
    const QRectF seen(0, 0, 9000, 4000);
    PageFind find;
    const auto search = [&](double from) {
        find.search({{u"mot"_qs}, true}, recording, metrics,
                    {{SurfaceId::PictureTexte, seen}, {SurfaceId::PictureIllus, seen}},
                    {0, from, 0});
        return viewer::findStatus(find);
    };
    EXPECT_EQ(viewer::findStatus(find), QString());
    EXPECT_EQ(search(10), u"2 sur 4"_qs);
    EXPECT_EQ(search(300), u"2 sur 4"_qs);
    EXPECT_EQ(search(601), u"4 sur 4"_qs); // the one beside
    find.next();
    EXPECT_EQ(viewer::findStatus(find), u"1 sur 4"_qs);
    find.previous();
    EXPECT_EQ(viewer::findStatus(find), u"4 sur 4"_qs);
    recording.clear();
    EXPECT_EQ(search(0), u"Aucune occurrence"_qs);
    find.next();
    EXPECT_EQ(find.current(), std::nullopt);
}

} // namespace
