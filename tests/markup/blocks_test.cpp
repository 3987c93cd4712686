#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using Row = test_support::PageRow;

class Blocks : public test_support::PageCase {};

TEST_P(Blocks, draws) {
    draws();
}

QStringList frame(int left, int top, int right, int bottom) {
    const auto line = [](int x1, int y1, int x2, int y2) {
        return QStringLiteral("line %1,%2 %3,%4").arg(x1).arg(y1).arg(x2).arg(y2);
    };
    return {line(left, top, right, top), line(left, bottom, right, bottom),
            line(left, top, left, bottom), line(right, top, right, bottom)};
}

INSTANTIATE_TEST_SUITE_P(
    Frames, Blocks,
    testing::Values(
        Row{"reachFromMarginToMargin", u"##POX010\n##PIY010\n##RECT020\nx\n",
            frame(0, 150, 8985, 435) + QStringList("print 150,150 \"x\" Arial 10")},
        Row{"aWidthIsForOneFrame", u"##POX010\n##LARGEUR100\n##RECT020\n##ALDR\n##RECT020\n",
            frame(150, 0, 1635, 285) + frame(0, 0, 8985, 285)},
        Row{"areCentred", u"##ALCE\n##LARGEUR100\n##RECT020\n", frame(3750, 0, 5235, 285)},
        Row{"standAtTheRightMargin", u"##TAB010200 1\n##ALDR\n##LARGEUR100\n##RECT020\n",
            frame(1380, 0, 2865, 285)},
        Row{"withoutHeightAreARule", u"##RECT\n", frame(0, 0, 8985, 0)},
        Row{"beyond16BitsAreAbandoned", u"##LARGEUR010\n##LARGEUR9E9\n##RECT9E9\n##RECT010\n",
            QStringList({"failed 2 ##LARGEUR9E9", "failed 3 ##RECT9E9"}) + frame(0, 0, 135, 135)}));

TEST(Frames, aWidthDoesNotReachTheNextPage) {
    test_support::PageBench bench;
    bench.draw("##LARGEUR100\n");
    EXPECT_EQ(bench.draw("##RECT020\n"), frame(0, 0, 8985, 285));
}

TEST(Gradients, fadeToWhiteFromWhereTheDrawingStarts) {
    test_support::PageBench bench;
    bench.startsAt = 300;
    const QStringList drawn = bench.draw("##PIY010\n##DGFOND4\nx\n");
    ASSERT_EQ(drawn.size(), 54);
    EXPECT_EQ(drawn[0], "fill 0,300 9000,120 mask #dce6ff");
    EXPECT_EQ(drawn[1], "fill 0,420 9000,120 mask #dce6ff");
    EXPECT_EQ(drawn[52], "fill 0,6540 9000,120 mask #fefeff");
    EXPECT_EQ(drawn[53], "print 0,450 \"x\" Arial 10");
}

TEST(Gradients, areAsWideAsTheColumnOfPaper) {
    test_support::PageBench bench;
    bench.as = markup::DrawnAs::Paper;
    const QStringList drawn = bench.draw("¶\n##DGFOND4\n");
    ASSERT_EQ(drawn.size(), 53);
    EXPECT_EQ(drawn.first(), "fill 0,0 9000,120 mask #dce6ff");
}

TEST(Gradients, unknownStylesDrawNothing) {
    test_support::PageBench bench;
    EXPECT_EQ(bench.draw("##DGFOND9\n##DGFOND\n"), QStringList());
}

} // namespace
