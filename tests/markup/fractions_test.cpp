#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using Row = test_support::PageRow;

class Fractions : public test_support::PageCase {};

TEST_P(Fractions, draws) {
    draws();
}

INSTANTIATE_TEST_SUITE_P(
    OneLine, Fractions,
    testing::Values(Row{"theBarLiesOnTheDenominator",
                        u"##C005\n##FRAC1#2\nx\n",
                        {"print 0,-100 \"1\" Arial 10 #800000",
                         "print 0,100 \"2\" Arial 10 #800000", "line 0,100 100,100 #800000",
                         "print 100,0 \"x\" Arial 10 #800000"}},
                    Row{"theShorterPartIsCentred",
                        u"a\n##FRAC1#234\n##FRAC234#1\nx\n",
                        {"print 0,0 \"a\" Arial 10", "print 200,-100 \"1\" Arial 10",
                         "print 100,100 \"234\" Arial 10", "line 100,100 400,100",
                         "print 400,-100 \"234\" Arial 10", "print 500,100 \"1\" Arial 10",
                         "line 400,100 700,100", "print 700,0 \"x\" Arial 10"}},
                    Row{"theLastSignSplits",
                        u"##FRACa#b#c\n",
                        {"print 0,-100 \"a#b\" Arial 10", "print 100,100 \"c\" Arial 10",
                         "line 0,100 300,100"}},
                    // A "#" at the very end is not seen, meant so: denominators are not empty.
                    Row{"aSignAtTheEndDoesNotSplit",
                        u"##FRACx#\n##FRACx\n##FRAC#\n##FRAC\ny\n##FRACa#b#\n",
                        {"print 0,0 \"y\" Arial 10", "print 150,-100 \"a\" Arial 10",
                         "print 100,100 \"b#\" Arial 10", "line 100,100 300,100"}},
                    Row{"aNumeratorMayBeEmpty",
                        u"##FRAC#x\n",
                        {"print 0,100 \"x\" Arial 10", "line 0,100 100,100"}},
                    Row{"itStartsAtAWholeTwip",
                        u"##ALCE\n##SI.5\na\n##ALGA\n##SI10\n##FRAC1#2\nx\n",
                        {"print 4497.5,0 \"a\" Arial 0.5", "print 4502,-100 \"1\" Arial 10",
                         "print 4502,100 \"2\" Arial 10", "line 4502,100 4602,100",
                         "print 4602,0 \"x\" Arial 10"}},
                    Row{"widthsAreWholeTwips",
                        u"##SI.5\n##FRACabc#d\nx\n",
                        {"print 0,-5 \"abc\" Arial 0.5", "print 5,5 \"d\" Arial 0.5",
                         "line 0,5 15,5", "print 15,0 \"x\" Arial 0.5"}}));

INSTANTIATE_TEST_SUITE_P(
    Bracketed, Fractions,
    testing::Values(
        Row{"theBarReachesTheLongerDenominator",
            u"a\n##NUMERATEUR\nb\n##DENOMINATEUR\ncde\n##FINFRAC\nf\n",
            {"print 0,0 \"a\" Arial 10", "print 100,-100 \"b\" Arial 10",
             "print 100,100 \"cde\" Arial 10", "line 100,100 400,100",
             "print 400,0 \"f\" Arial 10"}},
        Row{"theBarReachesTheLongerNumerator",
            u"##NUMERATEUR\nv\n##EXP2\n##BOL1\n c\n##DENOMINATEUR\nr\n##FINFRAC\nf\n",
            {"print 0,-100 \"v\" Arial 10", "print 100,-160 \"2\" Arial 8",
             "print 180,-100 \" c\" Arial 10 bold", "print 0,100 \"r\" Arial 10 bold",
             "line 0,100 380,100", "print 380,0 \"f\" Arial 10 bold"}},
        Row{"eachStepMeasuresItsOwnFont",
            u"##NUMERATEUR\n##SI20\na\n##DENOMINATEUR\nb\n##FINFRAC\nc\n",
            {"print 0,-100 \"a\" Arial 20", "print 0,300 \"b\" Arial 20", "line 0,300 200,300",
             "print 200,100 \"c\" Arial 20"}},
        Row{"aStartBeyond16BitsKeepsTheEarlierOne",
            u"##POX010\n##NUMERATEUR\n##POX2E3\n##PIX500\n##NUMERATEUR\n##DENOMINATEUR\n"
            u"x\n##FINFRAC\n¶\n",
            {"failed 5 ##NUMERATEUR", "failed 6 ##DENOMINATEUR", "print 150,0 \"x\" Arial 10",
             "line 150,0 250,0"}}));

// The end of the fraction before counts while it is the further one: nothing checks the order.
TEST(FractionEnd, isThatOfTheLastDenominator) {
    test_support::PageBench bench;
    EXPECT_EQ(bench.draw("##NUMERATEUR\nab\n##FINFRAC\n¶\n"),
              QStringList({"print 0,-100 \"ab\" Arial 10", "line 0,-100 200,-100"}));
    bench.draw("##POX100\n##NUMERATEUR\n##DENOMINATEUR\n##FINFRAC\n");
    EXPECT_EQ(bench.draw("##NUMERATEUR\nab\n##FINFRAC\nx¶\n"),
              QStringList({"print 0,-100 \"ab\" Arial 10", "line 0,-100 1500,-100",
                           "print 1500,-200 \"x\" Arial 10"}));
}

// Nothing resets the start, meant so.
TEST(FractionStart, survivesAPage) {
    test_support::PageBench bench;
    bench.draw("##POX010\n##NUMERATEUR\n##DENOMINATEUR\n##FINFRAC\n");
    EXPECT_EQ(bench.draw("##PIY010\nabc\n##FINFRAC\nd\n"),
              QStringList({"print 0,150 \"abc\" Arial 10", "line 150,150 300,150",
                           "print 300,50 \"d\" Arial 10"}));
}

} // namespace
