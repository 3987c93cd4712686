#include "markup/page_bench.h"
#include "page/surface.h"

#include <gtest/gtest.h>

// Expected positions follow from FixedMetrics: 100 twips a character, 200 a line at 10 points.

namespace {

using Row = test_support::PageRow;

class MainLoop : public test_support::PageCase {};

TEST_P(MainLoop, draws) {
    draws();
}

INSTANTIATE_TEST_SUITE_P(
    Lines, MainLoop,
    testing::Values(
        Row{"textAfterTheLastLineEndIsNotDrawn", u"un\ndeux", {"print 0,0 \"un\" Arial 10"}},
        Row{"aParagraphEndStartsANewLine",
            u"un¶\ndeux¶\n",
            {"print 0,0 \"un\" Arial 10", "print 0,200 \"deux\" Arial 10"}},
        Row{"aLoneParagraphEndMovesDown", u"¶\nun\n", {"print 0,200 \"un\" Arial 10"}},
        Row{"anEmptyLineDoesNothing", u"\n\nun\n", {"print 0,0 \"un\" Arial 10"}},
        Row{"runsFollowSideBySide",
            u"un\n##BOL1\ndeux\n",
            {"print 0,0 \"un\" Arial 10", "print 200,0 \"deux\" Arial 10 bold"}},
        Row{"onlyTheLastSignEndsAParagraph",
            u"a¶b¶¶\nc\n",
            {"print 0,0 \"a¶b¶\" Arial 10", "print 0,200 \"c\" Arial 10"}},
        Row{"theAdvanceIsThatOfTheFontAfterPrinting",
            u"un\n##SI20\n¶\ndeux\n",
            {"print 0,0 \"un\" Arial 10", "print 0,400 \"deux\" Arial 20"}},
        Row{"unknownDirectivesAreIgnored",
            u"##\n##ZZZ\n##bol1\n#\nun\n",
            {"print 0,0 \"#\" Arial 10", "print 100,0 \"un\" Arial 10"}},
        Row{"accentsJoinTheirLetter",
            u"e\u0301te\u0301¶\n##INDe\u0302\n##LIERTa\u0300#X\n",
            {"print 0,0 \"été\" Arial 10", "print 0,260 \"ê\" Arial 8",
             "link Labelien(0) 80,200 100,200 \"à\" X"}},
        Row{"fewAccentsHaveNoLetterOfTheirOwn",
            u"x\u0304 n\u0303¶\n",
            {"print 0,0 \"x\u0304 ñ\" Arial 10"}}));

INSTANTIATE_TEST_SUITE_P(
    Alignment, MainLoop,
    testing::Values(
        Row{"centreAndRightPlaceEachRun",
            u"##ALCE\nabcd\n##ALDR\nab\n##ALGA\nc\n",
            {"print 4300,0 \"abcd\" Arial 10", "print 8800,0 \"ab\" Arial 10",
             "print 9000,0 \"c\" Arial 10"}},
        // An empty line prints nothing, but is aligned as any other.
        Row{"anEmptyLineIsAlignedToo", u"##ALCE\n\n##ALGA\nc\n", {"print 4500,0 \"c\" Arial 10"}},
        Row{"paragraphsStartAtTheLeftMargin",
            u"##ALDR\nab¶\n##ALGA\nc\n",
            {"print 8800,0 \"ab\" Arial 10", "print 0,200 \"c\" Arial 10"}}));

INSTANTIATE_TEST_SUITE_P(
    Shadow, MainLoop,
    testing::Values(Row{"liesBelowAndToTheRight",
                        u"##RELIEF2 08\nun\nb\n",
                        {"print 30,30 \"un\" Arial 10 #808080", "print 0,0 \"un\" Arial 10",
                         "print 230,30 \"b\" Arial 10 #808080", "print 200,0 \"b\" Arial 10"}},
                    Row{"offsetZeroSwitchesItOff",
                        u"##RELIEF2 08\n##RELIEF0 08\nun\n",
                        {"print 0,0 \"un\" Arial 10"}},
                    Row{"aColourOutsideThePaletteKeepsTheInk",
                        u"##C005\n##RELIEF1 16\nun\n",
                        {"failed 3 ", "print 15,15 \"un\" Arial 10 #800000",
                         "print 0,0 \"un\" Arial 10 #800000"}}));

TEST(MainLoopState, aLoneLineFeedOrReturnEndsNoLine) {
    test_support::PageBench bench;
    EXPECT_EQ(bench.drawAsItIs(QStringLiteral("a\nb\rc¶\n\r\nd\r\ne\r")),
              QStringList({"print 0,0 \"a\nb\rc¶\n\" Arial 10", "print 700,0 \"d\" Arial 10"}));
}

// Names of files have to be those of the disc; composing an endless line takes no endless time.
TEST(MainLoopState, fileNamesAndHugeLinesAreLeftWhole) {
    test_support::PageBench bench;
    bench.draw(QStringLiteral("##IXAe\u0301.bmp\n##VIDEOe\u0301.avi\n"));
    EXPECT_EQ(bench.pictures.asked, QStringList(QStringLiteral("e\u0301.bmp")));
    EXPECT_EQ(bench.page.videoPage, QStringLiteral("e\u0301.avi"));
    const QStringList drawn = bench.draw(QStringLiteral("e\u0301").repeated(500'000) + "¶\n");
    EXPECT_EQ(drawn.value(0).count(u'é'), 500'000);
}

TEST(MainLoopState, leavesTheHeightDrawn) {
    test_support::PageBench bench;
    bench.draw("un¶\n##PIY001\n");
    EXPECT_EQ(bench.page.hauteurPage, 215);
    EXPECT_DOUBLE_EQ(bench.heightPx(page::SurfaceId::PictureTexte), 215 / 15.);
    EXPECT_EQ(bench.busy, QList<bool>({true, false}));
}

TEST(MainLoopState, aHeightThatIsNoneIsRefused) {
    test_support::PageBench bench;
    EXPECT_EQ(bench.draw("un¶\n##OBJTAILLE\n##DECLIG-5\n").last(), "failed 3 ");
    EXPECT_EQ(bench.page.hauteurPage, -1000);
    EXPECT_DOUBLE_EQ(bench.heightPx(page::SurfaceId::PictureTexte), 200 / 15.)
        << "the surface keeps the one it had";
}

TEST(MainLoopState, goesOnBelowWhatStandsWhenAsked) {
    test_support::PageBench bench;
    bench.draw("un¶\n");
    bench.startsAt = bench.page.hauteurPage;
    EXPECT_EQ(bench.draw("deux¶\n"), QStringList({"print 0,200 \"deux\" Arial 10"}));
    EXPECT_EQ(bench.page.hauteurPage, 400);
    bench.startsAt = 0;
    EXPECT_EQ(bench.draw("trois¶\n"), QStringList({"print 0,0 \"trois\" Arial 10"}));
}

TEST(MainLoopState, stylesDoNotReachTheNextPage) {
    test_support::PageBench bench;
    bench.draw("##SI20\n##BOL1\n##ITA1\n##UND1\n##C005\n##ALDR\n##INTER3.00\n##RELIEF2 01\n"
               "##FONT01\n##DECABAS\n");
    EXPECT_EQ(bench.draw("un¶\ndeux¶\n"),
              QStringList({"print 0,0 \"un\" Arial 10", "print 0,200 \"deux\" Arial 10"}));
}

TEST(MainLoopState, neitherAnOpenRowNorHalfALinkReachesTheNextPage) {
    test_support::PageBench bench;
    bench.draw("##TCH04\n##PIY020\n##TAB010200 1\n¶\n¶\n##LIER1perdu\n");
    EXPECT_EQ(bench.draw("##LIERTseul#X\n¶\n##TAB010020 1\n¶\n##FINTAB\n"),
              QStringList({"link Labelien(0) 0,0 400,200 \"seul\" X",
                           "line 150,200 300,200 #0000ff", "line 150,400 300,400 #0000ff",
                           "line 150,200 150,400 #0000ff", "line 300,200 300,400 #0000ff"}));
}

TEST(MainLoopState, paperHasAColumnOfItsOwnAndKeepsThePointer) {
    test_support::PageBench bench;
    bench.as = markup::DrawnAs::Paper;
    EXPECT_EQ(bench.draw("##ALDR\nab¶\n##PLOUF\n"), QStringList({"print 8800,0 \"ab\" Arial 10"}));
    EXPECT_EQ(bench.page.hauteurPage, 0);
    EXPECT_EQ(bench.busy, QList<bool>({true}));
    EXPECT_EQ(bench.heightPx(page::SurfaceId::Printer), 0);
    EXPECT_TRUE(bench.refreshed.isEmpty());
}

TEST(MainLoopState, aHostileHeightIsBounded) {
    test_support::PageBench bench;
    QString source = "##DECLIG1E9\nun¶\n";
    for (int i = 0; i < 5000; ++i)
        source += "##PLOUF\n";
    bench.draw(source);
    EXPECT_EQ(bench.heightPx(page::SurfaceId::PictureTexte), page::kMaxSurfaceHeightPx);
    EXPECT_EQ(bench.page.hauteurPage, 0) << "a height beyond 32 bits is not stored";
}

TEST(MainLoopState, everyOperationHasItsLine) {
    test_support::PageBench bench;
    bench.title = QStringLiteral("Titre");
    bench.draw("un¶\n¶\n##RELIEF1 08\ndeux\n##POX9E9\n##OBJILLUS\n##LIERTx#PAG001\n##DECLIG-9\n");
    EXPECT_EQ(bench.page.lines, (std::vector<std::int32_t>{0, 1, 4, 4, 5, 6, 7, 8}));
    EXPECT_EQ(bench.page.lineOf(4), 5);
    EXPECT_EQ(bench.page.lineOf(8), 0) << "nothing of the page";
    // What is thrown away on paper counts for nothing.
    bench.as = markup::DrawnAs::Paper;
    bench.draw("un¶\n##OBJILLUS\nperdu¶\n##OBJPRINCIPAL\ndeux\n");
    EXPECT_EQ(bench.page.lines, (std::vector<std::int32_t>{1, 5}));
}

TEST(MainLoopState, aQuestionStartsOnAnAreaOfItsOwn) {
    test_support::PageBench bench;
    bench.as = markup::DrawnAs::Question;
    bench.title = QStringLiteral("Titre");
    EXPECT_EQ(bench.draw("a¶\n##OBJTIT\nb\n"),
              QStringList({"print 0,0 \"a\" Arial 10", "surface titre", "clear titre",
                           "print 0,0 \"b\" Arial 10"}));
    EXPECT_EQ(bench.heightPx(page::SurfaceId::Picture2), 305) << "it ended on another";
    bench.draw("a¶\n");
    EXPECT_DOUBLE_EQ(bench.heightPx(page::SurfaceId::Picture2), 200 / 15.);
}

} // namespace
