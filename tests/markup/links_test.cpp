#include "markup/page_bench.h"
#include "page/link_view.h"

#include <gtest/gtest.h>

namespace {

using test_support::PageBench;
using Row = test_support::PageRow;

/// Has the symbols "LK" (24 x 24 pixels) and "VI" (40 x 30).
class LinkBench : public PageBench {
public:
    LinkBench() {
        pictures.symbols[QStringLiteral("LK")] =
            std::make_shared<test_support::PlainPicture>(QSize(24, 24));
        pictures.symbols[QStringLiteral("VI")] =
            std::make_shared<test_support::PlainPicture>(QSize(40, 30));
    }

    QString captionOf(int index) { return state.links.Labelien.slot(index)->link.caption; }
    const markup::LinkTable::MenuEntry& entry(int menu, int index) {
        return *state.links.menusFlottants.slot(menu)->slot(index);
    }
};

class Links : public testing::TestWithParam<Row> {};

TEST_P(Links, draws) {
    LinkBench bench;
    EXPECT_EQ(test_support::lines(bench.draw(QString::fromUtf16(GetParam().source))),
              test_support::lines(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Text, Links,
    testing::Values(
        Row{"standInTheLine",
            u"a\n##LIERTvoir#PAG012\nb\n",
            {"print 0,0 \"a\" Arial 10", "link Labelien(0) 100,0 400,200 \"voir\" PAG012",
             "print 500,0 \"b\" Arial 10"}},
        Row{"splitAtTheLastSharp", u"##LIERTa#b#c\n", {"link Labelien(0) 0,0 300,200 \"a#b\" c"}},
        Row{"needATarget",
            u"##LIERTa#\n##LIERTa\n##LIERXLKa\n##ADMENa\nb\n",
            {"print 0,0 \"b\" Arial 10"}},
        // But for the line under it, which marks the link under the pointer.
        Row{"takeTheTypeAndInkOfTheMoment",
            u"##C005\n##UND1\n##BOL1\n##LIERTa#X\n##BOL0\n##ITA1\n##SI20\n##FONT02\n##C000\n"
            u"##LIERTb#X\n",
            {"link Labelien(0) 0,0 100,200 \"a\" X Arial 10 bold #800000",
             "link Labelien(1) 100,0 200,400 \"b\" X Times new roman 20 italic"}},
        // Without a target the kept line waits for the next link.
        Row{"haveAFirstLine",
            u"##LIER1un\n##LIERTdeux\n##LIERTtrois#X\n##LIERTquatre#Y\n",
            {"link Labelien(0) 0,0 500,400 \"un\r\ntrois\" X",
             "link Labelien(1) 500,0 600,200 \"quatre\" Y"}}));

INSTANTIATE_TEST_SUITE_P(
    Pictures, Links,
    testing::Values(
        Row{"standAtThePen",
            u"a\n##LIERILKPAG012\n##LIERXVIune bulle#PAG013\nb\n",
            {"print 0,0 \"a\" Arial 10", "link Imagelien(0) 100,0 360,360 \"LK\" PAG012",
             "link Imagelien(1) 460,0 600,450 \"VI\" PAG013 tip \"une bulle\"",
             "print 1060,0 \"b\" Arial 10"}},
        Row{"withoutASymbolStillTakeTheirPlace",
            u"##LIERI??PAG012\nb\n",
            {"link Imagelien(0) 0,0 360,360 \"??\" PAG012", "print 360,0 \"b\" Arial 10"}},
        // An element without a tag counts as free even while it shows.
        Row{"withoutATargetAreReused",
            u"##LIERILK\n##LIERILKPAG001\n",
            {"link Imagelien(0) 0,0 360,360 \"LK\" ",
             "link Imagelien(0) 360,0 360,360 \"LK\" PAG001"}},
        Row{"openMenus",
            u"##LIERILKPAG001\n##LIERFLK\n##ADMENun#PAG002\n##LIER1deux\n##ADMENbis#PAG003\n",
            {"link Imagelien(0) 0,0 360,360 \"LK\" PAG001",
             "link Imagelien(1) 360,0 360,360 \"LK\" FLOTTANT", "menu 1 0 \"un\" PAG002",
             "menu 1 1 \"deux\r\nbis\" PAG003"}}));

TEST(LinkTable, theFirstElementIsReusedWhenAllAreTaken) {
    LinkBench bench;
    QString source;
    for (int i = 0; i <= markup::LinkTable::kLast + 1; ++i)
        source += QStringLiteral("##LIERT%1#X\n").arg(i);
    bench.draw(source);
    EXPECT_EQ(bench.captionOf(0), "100") << "meant so: the last link of a crowded page counts";
    EXPECT_EQ(bench.captionOf(1), "1");
    const auto standing = page::standingLinks(bench.recording);
    EXPECT_EQ(standing.size(), 100u);
    EXPECT_EQ(standing.back()->caption, "100");
}

TEST(LinkTable, theEleventhEntryReplacesTheFirst) {
    LinkBench bench;
    QString source = "##LIERFLK\n";
    for (int i = 0; i <= 10; ++i)
        source += QStringLiteral("##ADMENchoix %1#PAG%1\n").arg(i);
    bench.draw(source);
    EXPECT_EQ(bench.entry(0, 0).caption, "choix 10") << "meant so";
    EXPECT_EQ(bench.entry(0, 0).target, "PAG10");
    EXPECT_EQ(bench.entry(0, 9).caption, "choix 9");
}

TEST(LinkTable, menusBeyondTheTableStoreNothing) {
    LinkBench bench;
    QString source;
    for (int i = 0; i <= 20; ++i)
        source += "##LIERILKPAG001\n";
    bench.draw(source + "##LIERFLK\n##ADMENperdu#PAG002\n");
    EXPECT_EQ(bench.state.menuCourant, 21);
    EXPECT_EQ(test_support::describe(bench.recording).last(), "failed 23 ##ADMENperdu#PAG002");
    EXPECT_EQ(bench.entry(20, 0).caption, "");
}

TEST(LinkTable, aKeyWithoutASymbolShowsTheSignOfALink) {
    LinkBench bench;
    bench.draw("##LIERI??PAG012\n##LIERILKPAG012\n");
    const auto picture = [&](int index) {
        return bench.state.links.Imagelien.slot(index)->link.picture;
    };
    EXPECT_NE(picture(0), nullptr);
    EXPECT_EQ(picture(0), picture(1));
}

TEST(PlainLinks, onPaperAreTextAndLeaveTheControlsAlone) {
    LinkBench bench;
    bench.draw("##LIERTécran#PAG001\n##LIERFLK\n##ADMENun#PAG002\n");
    bench.state.enImpression = true;
    bench.state.surfaceDessin = &bench.printer;
    EXPECT_EQ(bench.draw("##UND1\n##LIER1un\n##LIERTdeux#PAG012\n##UND0\nb\n##LIERILKPAG001\n"
                         "##LIERFLK\n##LIER1x\n##ADMENy#PAG003\n##LIERTz#PAG004\n"),
              QStringList({"print 0,0 \"un\" Arial 10", "print 0,200 \"deux\" Arial 10",
                           "print 400,0 \"b\" Arial 10", "symbol 500,0 360,360 LK",
                           "symbol 860,0 360,360 LK", "print 1220,0 \"z\" Arial 10"}));
    EXPECT_EQ(bench.captionOf(0), QStringLiteral("écran"));
    EXPECT_EQ(bench.entry(0, 0).caption, "un");
    EXPECT_EQ(bench.entry(0, 1).caption, "");
}

TEST(PlainLinks, inAQuestionAreText) {
    LinkBench bench;
    bench.isQuestion = true;
    EXPECT_EQ(bench.draw("##LIERTvoir#PAG012\n##ADMENx#y\n##VIDEOa.avi\n##TITBARt\nb\n"),
              QStringList({"print 0,0 \"voir\" Arial 10", "print 400,0 \"b\" Arial 10"}));
    EXPECT_EQ(bench.caption, "");
    EXPECT_EQ(bench.videoFrames, 0);
    EXPECT_EQ(bench.state.videoPage, "");
}

} // namespace
