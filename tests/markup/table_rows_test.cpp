#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using Row = test_support::PageRow;

class TableRows : public test_support::PageCase {};

TEST_P(TableRows, draws) {
    draws();
}

INSTANTIATE_TEST_SUITE_P(
    Cells, TableRows,
    testing::Values(Row{"areColumnsOfTheirOwn",
                        u"##PIY010\n##TAB010200 1\na¶\nb¶\n##TAB200400 2\n##ALCE\nc¶\n##ALDR\nd\n",
                        {"print 270,150 \"a\" Arial 10", "print 270,350 \"b\" Arial 10",
                         "print 4450,150 \"c\" Arial 10", "print 5780,350 \"d\" Arial 10"}},
                    Row{"edgesBeyond16BitsKeepTheMargins",
                        u"##TAB9E9300 1\n##ALDR\na\n",
                        {"failed 1 ##TAB9E9300 1", "print 4280,0 \"a\" Arial 10"}},
                    Row{"cellsWithoutAPlaceOpenAllTheSame",
                        u"##TAB01010031\na\n##TAB100200-1\nb\n",
                        {"failed 1 ##TAB01010031", "print 270,0 \"a\" Arial 10",
                         "failed 3 ##TAB100200-1", "print 1620,0 \"b\" Arial 10"}}));

/// Every border in the ink of the tables.
QStringList borders(QStringList lines) {
    for (QString& line : lines)
        line += QStringLiteral(" #0000ff");
    return lines;
}

INSTANTIATE_TEST_SUITE_P(
    Borders, TableRows,
    testing::Values(
        Row{"haveTheirColours",
            u"##TCH01\n##TCB02\n##TCG04\n##TCI05\n##TCD06\n##C005\n##TAB010020 1\n##TAB020030 2\n"
            u"¶\n##FINTAB\nx\n",
            {"line 150,0 450,0 #000080", "line 150,200 450,200 #008000",
             "line 150,0 150,200 #800000", "line 300,0 300,200 #800080",
             "line 450,0 450,200 #808000", "print 0,200 \"x\" Arial 10 #800000"}},
        Row{"aColourOutsideThePaletteKeepsTheEarlierOne",
            u"##TCH16\n##TCG-1\n##TAB010020 1\n##FINTAB\n",
            QStringList({"failed 1 ##TCH16", "failed 2 ##TCG-1"}) +
                borders({"line 150,0 300,0", "line 150,0 300,0", "line 150,0 150,0",
                         "line 300,0 300,0"})},
        Row{"theTallestCellMakesTheRow",
            u"##TAB010020 1\n¶\n¶\n##TAB020030 2\n¶\n##FINTAB\n##ALDR\nx\n",
            borders({"line 150,0 450,0", "line 150,400 450,400", "line 150,0 150,400",
                     "line 300,0 300,400", "line 450,0 450,400"}) +
                QStringList("print 8900,400 \"x\" Arial 10")},
        Row{"aRowWithoutHeightHasOneLine", u"##PIY010\n##TAB010020 1\na\n##FINTAB\n",
            QStringList("print 270,150 \"a\" Arial 10") +
                borders({"line 150,150 300,150", "line 150,150 300,150", "line 150,150 150,150",
                         "line 300,150 300,150"})},
        Row{"aSecondRowStartsUnderTheFirst",
            u"##TAB010020 1\n¶\n¶\n##FINTAB\n##TAB010020 1\n¶\n##FINTAB\n##ALDR\nx¶\n##ALGA\n"
            u"y\n",
            borders({"line 150,0 300,0", "line 150,400 300,400", "line 150,0 150,400",
                     "line 300,0 300,400", "line 150,400 300,400", "line 150,600 300,600",
                     "line 150,400 150,600", "line 300,400 300,600"}) +
                QStringList({"print 8900,600 \"x\" Arial 10", "print 0,800 \"y\" Arial 10"})},
        Row{"aRowAboveAnotherEndsWithItsOwnCells",
            u"##PIY080\n##TAB010020 1\n¶\n##FINITAB\n##DECLIG-6\n##TAB010020 1\n¶\n##FINTAB\nx\n",
            borders({"line 150,200 300,200", "line 150,400 300,400", "line 150,200 150,400",
                     "line 300,200 300,400"}) +
                QStringList("print 0,400 \"x\" Arial 10")},
        Row{"aPenThatRisesMakesTheRowNoLower",
            u"##PIY010\n##TAB010020 1\n¶\n¶\n##TAB020030 2\n¶\n##DECLIG-2\n##FINTAB\nx\n",
            borders({"line 150,150 450,150", "line 150,550 450,550", "line 150,150 150,550",
                     "line 300,150 300,550", "line 450,150 450,550"}) +
                QStringList("print 0,550 \"x\" Arial 10")},
        // The text goes on in the frame, with the last cell's right margin, meant so.
        Row{"returningKeepsTheRightMargin", u"##TAB010020 1\n¶\n##FTABRET\n##ALDR\nx¶\n##ALGA\ny\n",
            borders({"line 150,0 300,0", "line 150,200 300,200", "line 150,0 150,200",
                     "line 300,0 300,200"}) +
                QStringList({"print 80,0 \"x\" Arial 10", "print 0,200 \"y\" Arial 10"})},
        Row{"thereMayBeNone",
            u"##TAB010020 1\n¶\n##FINITAB\nx¶\ny¶\n##ALDR\nz\n",
            {"print 0,200 \"x\" Arial 10", "print 0,400 \"y\" Arial 10",
             "print 8900,600 \"z\" Arial 10"}}));

TEST(RowBorders, cell31HasNone) {
    test_support::PageBench bench;
    // Inner borders stand at the edges of cells 2 to 30, wherever a row before left them.
    const QStringList drawn = bench.draw("##TAB010020 1\n##TAB02003099\n¶\n##FINTAB\n");
    EXPECT_EQ(drawn.size(), 1 + 4 + 29);
    EXPECT_FALSE(drawn.contains("line 300,0 300,200 #0000ff"));
}

TEST(Rows, giveTheColumnOfPaperBack) {
    test_support::PageBench bench;
    bench.as = markup::DrawnAs::Paper;
    EXPECT_EQ(bench.draw("##TAB010020 1\n¶\n##FINITAB\n##ALDR\nx\n"),
              QStringList("print 8900,200 \"x\" Arial 10"));
}

INSTANTIATE_TEST_SUITE_P(
    Fills, TableRows,
    testing::Values(Row{"leaveTheTextVisible",
                        u"##TAB010020 1\na¶\n##FINTAC01\nx¶\ny¶\n##ALDR\nz\n",
                        {"print 270,0 \"a\" Arial 10", "fill 150,0 150,200 mask #dcffe6",
                         "print 0,200 \"x\" Arial 10", "print 0,400 \"y\" Arial 10",
                         "print 8900,600 \"z\" Arial 10"}},
                    Row{"ofTheTable",
                        u"##TAB000010 1\n##FINTAC01\n##TAB000010 1\n##FINTAC02\n##TAB000010 1\n"
                        u"##FINTAC04\n##TAB000010 1\n##FINTAC05\n##TAB000010 1\n##FINTAC06\n",
                        {"fill 0,0 150,0 mask #dcffe6", "fill 0,0 150,0 mask #ffffdc",
                         "fill 0,0 150,0 mask #dce6ff", "fill 0,0 150,0 mask #fff0dc",
                         "fill 0,0 150,0 mask #ff9696"}},
                    Row{"otherStylesAreYellow",
                        u"##TAB010020 1\n##FINTAC07\n##FINTAC\n",
                        {"fill 150,0 150,0 mask #ffff00", "fill 150,0 8970,0 mask #ffff00"}},
                    Row{"aRowWrittenBackwardsIsFilledToo",
                        u"##TAB020030 1\n¶\n##TAB010015 2\n##FINTAC06\n",
                        {"fill 225,0 75,200 mask #ff9696"}},
                    Row{"theGradientPalesDownwards",
                        u"##TAB010020 1\n##PIY003\n##FINTAC03\n",
                        {"fill 150,0 150,15 mask #ffffc8", "fill 150,15 150,15 mask #ffffda",
                         "fill 150,30 150,15 mask #ffffed"}},
                    Row{"aGradientWithoutHeightIsOneLine",
                        u"##TAB010020 1\n##FINTAC03\n",
                        {"fill 150,0 150,15 mask #ffff64"}}));

TEST(RowFills, aHugeGradientIsBounded) {
    test_support::PageBench bench;
    const QStringList drawn = bench.draw("##TAB010020 1\n##DECLIG1E6\n##FINTAC03\n");
    EXPECT_EQ(drawn.size(), 56);
    EXPECT_TRUE(drawn.last().endsWith("mask #fffffe")) << drawn.last().toStdString();
}

} // namespace
