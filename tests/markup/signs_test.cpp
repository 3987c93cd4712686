#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using Row = test_support::PageRow;

class Signs : public test_support::PageCase {};

TEST_P(Signs, draws) {
    draws();
}

INSTANTIATE_TEST_SUITE_P(
    Shifted, Signs,
    testing::Values(Row{"anIndexHangsSixTwipsAPoint",
                        u"##SI12\nH\n##IND2\nO\n",
                        {"print 0,0 \"H\" Arial 12", "print 120,72 \"2\" Arial 10",
                         "print 220,0 \"O\" Arial 12"}},
                    Row{"anExponentRisesAsMuch",
                        u"##SI12\n##EXP-3\nm\n",
                        {"print 0,-72 \"-3\" Arial 10", "print 200,0 \"m\" Arial 12"}},
                    // The threshold is meant so.
                    Row{"from10PointsOnTheyShrink",
                        u"##SI10\n##INDa\n##EXPb\nc\n",
                        {"print 0,60 \"a\" Arial 8", "print 80,-60 \"b\" Arial 8",
                         "print 160,0 \"c\" Arial 10"}},
                    Row{"below10PointsTheyDoNot",
                        u"##SI08\n##INDa\n##SI09\n##EXPb\nc\n",
                        {"print 0,48 \"a\" Arial 8", "print 80,-54 \"b\" Arial 9",
                         "print 170,0 \"c\" Arial 9"}},
                    Row{"theSizeIsReadInWholePoints",
                        u"##SI.5\n##IND\n##SI1.\nx\n##SI.8\n##INDa\nb\n",
                        {"print 0,0 \"x\" Arial 1", "print 10,6 \"a\" Arial 0.8",
                         "print 18,0 \"b\" Arial 1"}},
                    Row{"withoutTextNothingIsPrinted",
                        u"##SI12\n##IND\n##EXP\nx\n",
                        {"print 0,0 \"x\" Arial 12"}}));

INSTANTIATE_TEST_SUITE_P(Stacked, Signs,
                         testing::Values(
                             // 9 and 6 twips a point: the two distances differ, meant so.
                             Row{"theLowerSignHangsFurther",
                                 u"##SI12\n##POLY2+\nx\n",
                                 {"print 0,108 \"2\" Arial 10", "print 0,-72 \"+\" Arial 10",
                                  "print 100,0 \"x\" Arial 12"}},
                             Row{"theLastCharacterIsTheUpperSign",
                                 u"##SI08\n##POLY4 et 2\nx\n",
                                 {"print 0,72 \"4\" Arial 8", "print 0,-48 \"2\" Arial 8",
                                  "print 80,0 \"x\" Arial 8"}},
                             Row{"aLoneSignIsBoth",
                                 u"##POLY2\n",
                                 {"print 0,90 \"2\" Arial 8", "print 0,-60 \"2\" Arial 8"}},
                             Row{"theyStartAtAWholeTwip",
                                 u"##SI.5\na\n##SI12\n##SI.5\nb\n##SI.6\nc\n##SI10\n##POLY12\nd\n",
                                 {"print 0,0 \"a\" Arial 0.5", "print 5,0 \"b\" Arial 0.5",
                                  "print 10,0 \"c\" Arial 0.6", "print 16,90 \"1\" Arial 8",
                                  "print 16,-60 \"2\" Arial 8", "print 96,0 \"d\" Arial 10"}}));

INSTANTIATE_TEST_SUITE_P(
    Symbols, Signs,
    testing::Values(
        // "CHAPEAU" begins with "C" and ends in no number: the hat and what follows are black,
        // meant so.
        Row{"aHatStandsOverWhatFollowsAndLeavesBlackInk",
            u"##C005\n##CHAPEAU\ne\n",
            {"print 0,-84 \"^\" Arial 12", "print 0,0 \"e\" Arial 10"}},
        Row{"theHatStartsAtAWholeTwip",
            u"##ALCE\n##SI.5\na\n##ALGA\n##SI10\n##CHAPEAU\ne\n",
            {"print 4497.5,0 \"a\" Arial 0.5", "print 4502.5,-84 \"^\" Arial 12",
             "print 4502,0 \"e\" Arial 10"}},
        Row{"moreThanTheKeywordIsNoHat", u"##C005\n##CHAPEAUX\ne\n", {"print 0,0 \"e\" Arial 10"}},
        Row{"pointAndArrowKeepTheFace",
            u"##FONT02\n##POINT\n##BOL1\n##FLECHE\nx\n##POINTS\n",
            {"print 0,0 \"·\" Symbol 10", "print 100,0 \"¾®\" Symbol 10 bold",
             "print 300,0 \"x\" Times new roman 10 bold"}},
        Row{"stayDoesNothing",
            u"a\n##STAY\nb\n",
            {"print 0,0 \"a\" Arial 10", "print 100,0 \"b\" Arial 10"}}));

} // namespace
