#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using test_support::PageBench;
using Row = test_support::PageRow;

class AnswerFields : public testing::TestWithParam<Row> {};

TEST_P(AnswerFields, draws) {
    PageBench bench;
    bench.as = markup::DrawnAs::Question;
    EXPECT_EQ(test_support::lines(bench.draw(QString::fromUtf16(GetParam().source))),
              test_support::lines(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Fields, AnswerFields,
    testing::Values(
        Row{"choicesAreTakenInOrder",
            u"##EXOOP\noui¶\n##EXOOP\nnon¶\n##EXOCK\nx\n",
            {"field Option1(0) 0,45 270", "print 270,0 \"oui\" Arial 10",
             "field Option1(1) 0,245 270", "print 270,200 \"non\" Arial 10",
             "field Check1(0) 0,430 270", "print 270,400 \"x\" Arial 10"}},
        Row{"moreChoicesThanControlsMoveNothing",
            u"##EXOOP\n##EXOOP\n##EXOOP\n##EXOOP\n##EXOOP\n##EXOOP\nx\n",
            {"field Option1(0) 0,45 270", "field Option1(1) 270,45 270",
             "field Option1(2) 540,45 270", "field Option1(3) 810,45 270",
             "field Option1(4) 1080,45 270", "print 1350,0 \"x\" Arial 10"}},
        Row{"aTypedAnswerTakesItsRoom",
            u"U =\n##EXOTX\nV\n",
            {"print 0,0 \"U =\" Arial 10", "field Text1(0) 300,-30 3000",
             "print 3300,0 \"V\" Arial 10"}},
        Row{"linksLeadToPages",
            u"##EXOLIle cours#12\n##EXOVIle film#13\nx\n##EXOLIa#\n",
            {"field Image1(0) 0,0 480 12", "field Labelien(0) 480,0 800 \"le cours\" 12",
             "field Icovideo(0) 1280,0 360 tip \"le film\" 13", "print 1640,0 \"x\" Arial 10"}},
        Row{"theSignOfALinkIsLevelWithItsCaption",
            u"¶\n##EXOLIa#1\n",
            {"field Image1(0) 0,120 480 1", "field Labelien(0) 480,200 100 \"a\" 1"}},
        Row{"linksTakeTheTypeAndInkOfTheMoment",
            u"##BOL1\n##UND1\n##SI20\n##C005\n##EXOLIa#1\n",
            {"field Image1(0) 0,20 480 1",
             "field Labelien(0) 480,0 200 \"a\" 1 Arial 20 bold #800000"}}));

TEST(AnswerFieldsState, ofTwoTypedAnswersTheLastPlaceCounts) {
    PageBench bench;
    bench.as = markup::DrawnAs::Question;
    bench.draw("##EXOTX\n¶\n##EXOTX\n");
    EXPECT_TRUE(bench.page.fields.Text1.visible);
    EXPECT_EQ(bench.page.fields.Text1.place.y, 170);
}

TEST(AnswerFieldsState, aCoursePageHasNone) {
    PageBench bench;
    EXPECT_EQ(bench.draw("##EXOOP\n##EXOCK\n##EXOTX\n##EXOLIa#b\n##EXOVIa#b\nx\n"),
              QStringList({"print 0,0 \"x\" Arial 10"}));
}

} // namespace
