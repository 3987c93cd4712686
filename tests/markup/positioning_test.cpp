#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using Row = test_support::PageRow;

class Positioning : public test_support::PageCase {};

TEST_P(Positioning, draws) {
    draws();
}

INSTANTIATE_TEST_SUITE_P(
    Pen, Positioning,
    testing::Values(
        Row{"absolute", u"##POX100\nx\n", {"print 1500,0 \"x\" Arial 10"}},
        Row{"relative", u"##POX010\n##PIX-05\n##PIY004\nx\n", {"print 75,60 \"x\" Arial 10"}},
        Row{"beyond16BitsIsAbandoned",
            u"##POX010\n##POX3E3\n##PIX3E3\n##PIY9E9\nx\n",
            {"failed 2 ##POX3E3", "failed 3 ##PIX3E3", "failed 4 ##PIY9E9",
             "print 150,0 \"x\" Arial 10"}},
        Row{"lines",
            u"##DECLIG1.5\nx\n##DECLIG-1\ny\n",
            {"print 0,300 \"x\" Arial 10", "print 100,100 \"y\" Arial 10"}},
        Row{"beyondAnySurfaceIsAbandoned",
            u"##DECLIG1E300\nx\n",
            {"failed 1 ##DECLIG1E300", "print 0,0 \"x\" Arial 10"}},
        // The text measured includes the "C" of "FEINC", meant so: three characters, not two.
        Row{"centringCountsTheLetterC", u"##FEINCab\nab\n", {"print 4350,0 \"ab\" Arial 10"}},
        Row{"inACellItIsTheCells",
            u"##TAB010200 1\n##FEINCab\nab\n",
            {"print 1425,0 \"ab\" Arial 10"}}));

INSTANTIATE_TEST_SUITE_P(
    Shifts, Positioning,
    testing::Values(
        Row{"areForOneLineOnly",
            u"H\n##DECABAS\n2\nO\n",
            {"print 0,0 \"H\" Arial 10", "print 100,100 \"2\" Arial 10",
             "print 200,0 \"O\" Arial 10"}},
        Row{"waitForTheNextTextLine",
            u"##DECAHA2\n##BOL1\na\nb\n",
            {"print 0,-50 \"a\" Arial 10 bold", "print 100,0 \"b\" Arial 10 bold"}},
        Row{"areUsedUpByAnEmptyLine", u"##DECABA2\n\na\n", {"print 0,0 \"a\" Arial 10"}},
        Row{"ofTwoTheLastCounts", u"##DECABAS\n##DECAHAU\na\n", {"print 0,-100 \"a\" Arial 10"}},
        Row{"theLastingOnesStay",
            u"##DECABADEF\na\n##DECAHADEF\nb\n##DECAB2DEF\nc\n##DECAH2DEF\nd\n",
            {"print 0,100 \"a\" Arial 10", "print 100,0 \"b\" Arial 10",
             "print 200,50 \"c\" Arial 10", "print 300,0 \"d\" Arial 10"}},
        Row{"coverTheShadowToo",
            u"##RELIEF1 08\n##DECABAS\na\nb\n",
            {"print 15,115 \"a\" Arial 10 #808080", "print 0,100 \"a\" Arial 10",
             "print 115,15 \"b\" Arial 10 #808080", "print 100,0 \"b\" Arial 10"}}));

TEST(Shifts, roundHalvesToEven) {
    test_support::PageBench bench;
    // Height of a line at 0.5 points: 10 twips; its quarter is 2.5, its half 5.
    EXPECT_EQ(bench.draw("##SI.5\n##DECABA2\na\n##DECAB2DEF\nb\n"),
              QStringList({"print 0,2 \"a\" Arial 0.5", "print 5,2.5 \"b\" Arial 0.5"}));
}

INSTANTIATE_TEST_SUITE_P(
    Surfaces, Positioning,
    testing::Values(Row{"eachStartsAfreshAtItsTopLeft",
                        u"##SI20\n##C005\nun¶\n##OBJILLUS\ndeux¶\n##OBJPRINCIPAL\ntrois\n",
                        {"print 0,0 \"un\" Arial 20 #800000", "surface PICTUREILLUS",
                         "print 0,0 \"deux\" Arial 10", "surface PictureTEXTE",
                         "print 0,0 \"trois\" Arial 10"}},
                    Row{"theTitleBandIsWiped",
                        u"##OBJTIT\ntitre¶\n",
                        {"surface titre", "clear titre", "print 0,0 \"titre\" Arial 10"}},
                    Row{"marginsAreThoseOfTheSurface",
                        u"##OBJILLUS\n##ALDR\nab\n",
                        {"surface PICTUREILLUS", "print 2050,0 \"ab\" Arial 10"}},
                    Row{"anUnknownNameStillResets",
                        u"##POX010\n##BOL1\n##OBJAUTRE\nx\n",
                        {"print 0,0 \"x\" Arial 10"}}));

TEST(Surfaces, sizeFollowsThePen) {
    test_support::PageBench bench;
    bench.draw("a¶\nb¶\n##OBJTAILLE\n##OBJILLUS\nc¶\n");
    EXPECT_DOUBLE_EQ(bench.heightPx(page::SurfaceId::PictureTexte), 400 / 15.);
    EXPECT_DOUBLE_EQ(bench.heightPx(page::SurfaceId::PictureIllus), 200 / 15.);
    EXPECT_EQ(bench.page.end.surface, page::SurfaceId::PictureIllus);
}

TEST(Surfaces, refreshShowsWhatWasDrawnSoFarAndGrows) {
    test_support::PageBench bench;
    // The surface that a page ends on is cut to what was drawn, the others keep their height.
    bench.draw("a¶\n##PLOUF\nb¶\n##PLOUFX\n##PLOUF\n##OBJILLUS\n");
    EXPECT_EQ(bench.refreshedAt, QList<int>({1, 2}));
    EXPECT_EQ(bench.refreshed, QList<page::SurfaceId>(2, page::SurfaceId::PictureTexte));
    EXPECT_EQ(bench.heightPx(page::SurfaceId::PictureTexte), 2000);
}

TEST(Surfaces, captionKeepsItsEighteenBlanks) {
    test_support::PageBench bench;
    bench.draw("##TITBARLa lumière\n");
    EXPECT_EQ(bench.page.caption, "Orvalente - KAROPE" + QString(18, u' ') + "La lumière");
}

} // namespace
