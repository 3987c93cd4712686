#include "viewer/history.h"
#include "viewer/logic_bench.h"
#include "viewer/page_code.h"

#include <gmock/gmock.h>

#include <numeric>

namespace {

using testing::ElementsAre;

class Histories : public testing::Test {
protected:
    void visit(std::initializer_list<int> numbers) {
        for (const int number : numbers)
            bench.commands.runCode(viewer::pageCode(number));
    }

    test_support::LogicBench bench{test_support::pages(150)};
};

TEST_F(Histories, backIsPossibleFromTheSecondPageOn) {
    visit({1});
    EXPECT_FALSE(bench.view.back);
    visit({2});
    EXPECT_TRUE(bench.view.back);
    bench.commands.back();
    EXPECT_EQ(bench.shown(), QStringLiteral("1"));
    EXPECT_FALSE(bench.view.back);
    EXPECT_TRUE(bench.view.forward);
    bench.commands.forward();
    EXPECT_EQ(bench.shown(), QStringLiteral("2"));
    EXPECT_FALSE(bench.view.forward);
    EXPECT_THAT(bench.history(), ElementsAre(1, 2));
}

TEST_F(Histories, goingOnFromAnEarlierPageLeavesStaleEntriesAbove) {
    visit({1, 2, 3, 4});
    bench.commands.back();
    bench.commands.back();
    visit({5});
    EXPECT_THAT(bench.history(), ElementsAre(1, 2, 5));
    EXPECT_FALSE(bench.view.forward);
    // Meant so: after going back, forward leads past the new page to what is left of the old path.
    bench.commands.back();
    bench.commands.forward();
    EXPECT_TRUE(bench.view.forward);
    bench.commands.forward();
    EXPECT_EQ(bench.shown(), QStringLiteral("4"));
}

TEST_F(Histories, holdsTheLastHundredPages) {
    for (int number = 1; number <= 101; ++number)
        visit({number});
    EXPECT_EQ(bench.state.HistoryPos, 100);
    QList<int> last(100);
    std::iota(last.begin(), last.end(), 2);
    EXPECT_EQ(bench.history(), last);
    for (int step = 0; step < 99; ++step)
        bench.commands.back();
    EXPECT_EQ(bench.shown(), QStringLiteral("2"));
    EXPECT_FALSE(bench.view.back);
}

TEST_F(Histories, forwardAtTheLastSlotStaysPossibleAndShowsNothingNew) {
    for (int number = 1; number <= 100; ++number)
        visit({number});
    bench.commands.back();
    bench.commands.forward();
    EXPECT_EQ(bench.shown(), QStringLiteral("100"));
    EXPECT_TRUE(bench.view.forward);
    bench.collaborators.log.clear();
    bench.commands.forward();
    EXPECT_FALSE(bench.collaborators.log.contains(QStringLiteral("show page")));
    EXPECT_EQ(bench.state.HistoryPos, 101);
    bench.commands.back();
    EXPECT_EQ(bench.shown(), QStringLiteral("100"));
    visit({7});
    EXPECT_EQ(bench.state.HistoryPos, 100);
    EXPECT_EQ(bench.history().last(), 7);
}

TEST_F(Histories, positionStaysWithin16Bits) {
    bench.state.HistoryPos = 32767;
    EXPECT_EQ(viewer::History(bench.state).stepForward(), std::nullopt);
    EXPECT_EQ(bench.state.HistoryPos, 32767);
}

TEST_F(Histories, emptySlotShowsPageZero) {
    visit({9});
    bench.state.HistoryPages.store(2, 0);
    bench.commands.forward();
    EXPECT_EQ(bench.shown(), QStringLiteral("1")); // number 0 is a hole: the record of position 0
}

TEST_F(Histories, allButBackAndForwardIsRecordedAlsoWhenThePageFails) {
    visit({1});
    bench.state.ExerciseReturnPage = 12;
    bench.commands.returnToTest();
    bench.state.SearchChosenPage = 13;
    bench.commands.search();
    bench.commands.nextInChapter();
    EXPECT_THAT(bench.history(), ElementsAre(1, 12, 13, 14));

    // Nothing of these pages can be drawn; going back and forward over them records nothing.
    for (auto& record : bench.cours.records)
        record[QStringLiteral("fpc")] = QStringLiteral("##SI99999\r\n##OBJNOWHERE\r\nx");
    visit({20});
    bench.commands.back();
    bench.commands.forward();
    EXPECT_THAT(bench.history(), ElementsAre(1, 12, 13, 14, 20));
    EXPECT_TRUE(bench.state.HistoryRecording);
}

} // namespace
