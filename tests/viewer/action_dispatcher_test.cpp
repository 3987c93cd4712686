#include "viewer/action_dispatcher.h"
#include "viewer/logic_bench.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using test_support::page;
using testing::ElementsAre;

class Actions : public testing::Test {
protected:
    /// Runs a code; the number of the page shown by it, or "-" when it showed none.
    QString run(const QString& code) {
        bench.collaborators.log.clear();
        bench.actions.run(code);
        return bench.collaborators.log.contains(QStringLiteral("show page")) ? bench.shown()
                                                                             : QStringLiteral("-");
    }

    // In the order of the records; the numbers 0 and 2 have no page.
    test_support::LogicBench bench{{page(3), page(1), page(5)}};
};

TEST_F(Actions, pageCodesLeadToTheRecordOfTheNumber) {
    struct Row {
        QString code;
        QString shown;
    };
    for (const Row& row : {
             Row{QStringLiteral("PAG001"), QStringLiteral("1")},
             Row{QStringLiteral("PAG003"), QStringLiteral("3")},
             Row{QStringLiteral("PAG005"),
                 QStringLiteral("5")}, // the highest number is still reached
             Row{QStringLiteral("PAG002"),
                 QStringLiteral("3")}, // a hole leads to the record of position 0: meant so
             Row{QStringLiteral("PAG000"), QStringLiteral("3")},
             Row{QStringLiteral("PAG001"), QStringLiteral("1")},
             Row{QStringLiteral("PAG006"), QStringLiteral("1")}, // out of bounds: the page stays
             Row{QStringLiteral("PAG999"), QStringLiteral("1")},
             Row{QStringLiteral("PAG-05"), QStringLiteral("1")},
             Row{QStringLiteral("PAG1005"), QStringLiteral("5")}, // only three digits count
             Row{QStringLiteral("pag003"), QStringLiteral("-")},  // letter case counts
             Row{QStringLiteral("PA"), QStringLiteral("-")},
             Row{QStringLiteral(""), QStringLiteral("-")},
             Row{QStringLiteral("XYZ003"), QStringLiteral("-")},
         })
        EXPECT_EQ(run(row.code), row.shown) << qPrintable(row.code);
}

TEST_F(Actions, outOfBoundsRecordsThePageOnceMore) {
    run(QStringLiteral("PAG003"));
    run(QStringLiteral("PAG900"));
    bench.actions.showPageByOrder(900);
    EXPECT_THAT(bench.history(), ElementsAre(3, 3, 3));
}

TEST_F(Actions, readingOrderHasItsOwnTable) {
    bench.cours.records = {page(3, {}, {{QStringLiteral("Index"), 7.0}}),
                           page(1, {}, {{QStringLiteral("Index"), 8.0}})};
    coursedata::buildPageIndex(bench.cours, bench.state);
    bench.actions.showPageByOrder(8);
    EXPECT_EQ(bench.shown(), QStringLiteral("1"));
    EXPECT_EQ(bench.state.CurrentOrderIndex, 8);
    bench.commands.previousInChapter();
    EXPECT_EQ(bench.shown(), QStringLiteral("3"));
    bench.commands.nextInChapter();
    bench.commands.nextInChapter(); // of the last page: it is shown again
    EXPECT_EQ(bench.shown(), QStringLiteral("1"));
    EXPECT_THAT(bench.history(), ElementsAre(1, 3, 1, 1));
    // Outside the table the page stays.
    for (const int index : {9, 10, -1, std::numeric_limits<int>::min()}) {
        bench.actions.showPageByOrder(index);
        EXPECT_EQ(bench.shown(), QStringLiteral("1")) << index;
    }
}

TEST_F(Actions, neighbourOfTheHighestIndexIsNone) {
    run(QStringLiteral("PAG001"));
    bench.state.CurrentOrderIndex = std::numeric_limits<std::int32_t>::max();
    bench.collaborators.log.clear();
    bench.commands.nextInChapter();
    EXPECT_TRUE(bench.collaborators.log.isEmpty());
}

TEST_F(Actions, withoutIndexThePageStays) {
    run(QStringLiteral("PAG001"));
    bench.state.PageByNumber.reset();
    bench.state.PageByOrder.reset();
    EXPECT_EQ(run(QStringLiteral("PAG003")), QStringLiteral("1"));
    bench.actions.showPageByOrder(3);
    EXPECT_EQ(bench.shown(), QStringLiteral("1"));
}

TEST_F(Actions, otherPrefixesLeaveThePageAlone) {
    EXPECT_EQ(run(QStringLiteral("EXE235")), QStringLiteral("-"));
    EXPECT_THAT(bench.collaborators.log,
                ElementsAre(QStringLiteral("launch 235"), QStringLiteral("normal pointer")));
    run(QStringLiteral("BDC000"));
    EXPECT_THAT(bench.collaborators.log,
                ElementsAre(QStringLiteral("order form"), QStringLiteral("normal pointer")));
    run(QStringLiteral("??"));
    EXPECT_THAT(bench.collaborators.log, ElementsAre(QStringLiteral("normal pointer")));
}

TEST_F(Actions, pendingChapterIsNeverOverwritten) {
    bench.actions.run(QStringLiteral("EXO012"));
    EXPECT_EQ(bench.state.PendingExerciseChapter, 12);
    bench.actions.run(QStringLiteral("EXO034"));
    EXPECT_EQ(bench.state.PendingExerciseChapter, 12);
    EXPECT_EQ(bench.collaborators.log.count(QStringLiteral("exercise")), 2);
}

TEST_F(Actions, exerciseMayReplaceTheCodeByThePageToReturnTo) {
    bench.collaborators.exercise.whileOpen = [this] { bench.state.ExerciseReturnPage = 7; };
    QString code = QStringLiteral("EXO001");
    bench.actions.runAction(code);
    EXPECT_EQ(code, QStringLiteral("PAG007"));
    EXPECT_TRUE(bench.view.returnToTest);

    bench.collaborators.exercise.whileOpen = [this] { bench.state.ExerciseReturnPage = 0; };
    code = QStringLiteral("EXO001");
    bench.actions.runAction(code);
    EXPECT_EQ(code, QStringLiteral("EXO001"));
    EXPECT_FALSE(bench.view.returnToTest);
}

} // namespace
