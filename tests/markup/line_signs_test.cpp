#include "markup/page_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Row = test_support::PageRow;

class LineSigns : public test_support::PageCase {};

TEST_P(LineSigns, draws) {
    draws();
}

// Half the width of "X" is 50, a line 200.
INSTANTIATE_TEST_SUITE_P(
    Roots, LineSigns,
    testing::Values(Row{"encloseALine",
                        u"##PIY010\n##C005\n##SQD\nab\n##SQF1\nc\n",
                        {"print 150,150 \"ab\" Arial 10 #800000", "line 0,250 50,350 #800000",
                         "line 50,350 100,150 #800000", "line 100,150 350,150 #800000",
                         "print 350,150 \"c\" Arial 10 #800000"}},
                    Row{"reachAroundAFraction",
                        u"##SQD\n##SQF2\nc\n",
                        {"line 0,100 50,300", "line 50,300 100,-100", "line 100,-100 150,-100",
                         "print 150,0 \"c\" Arial 10"}},
                    Row{"withoutAFactorAreFlat",
                        u"##SQD\n##SQFx\n",
                        {"line 0,100 50,100", "line 50,100 100,100", "line 100,100 150,100"}},
                    Row{"beyond16BitsAreNotDrawn",
                        u"##SQD\n##SQF1E9\nx\n",
                        {"failed 2 ##SQF1E9", "print 150,0 \"x\" Arial 10"}}));

// The mark overhangs the text by a quarter of a blank, 25 twips.
INSTANTIATE_TEST_SUITE_P(Marks, LineSigns,
                         testing::Values(Row{"bars",
                                             u"##POX010\n##VA1AB\n##VA2C\nd\n",
                                             {"print 150,0 \"AB\" Arial 10", "line 125,-30 375,-30",
                                              "print 350,0 \"C\" Arial 10", "line 325,-60 475,-60",
                                              "print 450,0 \"d\" Arial 10"}},
                                         Row{"vectors",
                                             u"##POX010\n##VE1F\n##VE2\nd\n",
                                             {"print 150,0 \"F\" Arial 10", "line 125,-30 275,-30",
                                              "line 275,-30 215,-60", "line 275,-30 215,0",
                                              "line 225,-60 275,-60", "line 275,-60 215,-90",
                                              "line 275,-60 215,-30",
                                              "print 250,0 \"d\" Arial 10"}}));

INSTANTIATE_TEST_SUITE_P(
    Signs, LineSigns,
    testing::Values(Row{"brackets",
                        u"##K001\nx\n##K101\ny\n##K1010\n",
                        {"line 70,-100 20,-100", "line 20,-100 20,300", "line 20,300 70,300",
                         "print 90,0 \"x\" Arial 10", "line 210,-100 260,-100",
                         "line 260,-100 260,300", "line 260,300 210,300",
                         "print 280,0 \"y\" Arial 10"}},
                    Row{"equilibrium",
                        u"##K004\nx\n",
                        {"line 40,80 360,80", "line 360,80 310,50", "line 360,120 40,120",
                         "line 40,120 90,150", "print 415,0 \"x\" Arial 10"}},
                    // 40 twips free on either side of the arrow, whose last pixel counts.
                    Row{"reaction",
                        u"##K104\nx\n",
                        {"line 40,100 360,100", "line 310,70 360,100", "line 360,100 310,130",
                         "print 415,0 \"x\" Arial 10"}}));

/// Points that the lines of a source touch, sorted.
std::vector<std::pair<double, double>> points(const char* source) {
    test_support::PageBench bench;
    bench.draw(QString::fromLatin1(source));
    std::vector<std::pair<double, double>> found;
    for (const page::Operation& operation : bench.page.recording.operations()) {
        const auto& line = std::get<page::LineOperation>(operation);
        found.emplace_back(qRound(line.x1), qRound(line.y1));
        found.emplace_back(qRound(line.x2), qRound(line.y2));
    }
    std::sort(found.begin(), found.end());
    return found;
}

TEST(TallSigns, closeAsTheyOpen) {
    const std::tuple<const char*, const char*, double> pairs[] = {
        {"##SI11\n##K002\n", "##SI11\n##K102\n", 132},
        {"##SI11\n##K003\n", "##SI11\n##K103\n", 88}};
    for (const auto& [opening, closing, advance] : pairs) {
        auto mirrored = points(closing);
        for (auto& point : mirrored)
            point.first = advance - point.first;
        std::sort(mirrored.begin(), mirrored.end());
        EXPECT_EQ(points(opening), mirrored) << opening;
    }
}

TEST(TallSigns, reachAsFarAsAFraction) {
    for (const char* source : {"##K002\n", "##K003\n"}) {
        const auto touched = points(source);
        const auto byHeight = [](auto a, auto b) { return a.second < b.second; };
        const auto [top, bottom] = std::minmax_element(touched.begin(), touched.end(), byHeight);
        EXPECT_EQ(top->second, -100) << source;
        EXPECT_EQ(bottom->second, 300) << source;
    }
}

} // namespace
