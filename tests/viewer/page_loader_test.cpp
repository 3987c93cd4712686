#include "viewer/logic_bench.h"
#include "viewer/page_loader.h"

#include <gmock/gmock.h>

namespace {

using coursedata::FieldValue;
using test_support::page;
using testing::ElementsAre;

TEST(PageLoader, showsARecordInAFixedOrder) {
    test_support::LogicBench bench({page(4, QStringLiteral("Bonjour¶\r\n"),
                                         {{QStringLiteral("precedent"), true},
                                          {QStringLiteral("imprimable"), true},
                                          {QStringLiteral("sommaire"), 28.0}})});
    bench.pages.showCurrentRecord();
    EXPECT_THAT(
        bench.collaborators.log,
        ElementsAre(QStringLiteral("hide page"), QStringLiteral("free links"),
                    QStringLiteral("hide bar"), QStringLiteral("clear pictures"),
                    QStringLiteral("close video"), QStringLiteral("caption Orvalente - KAROPE"),
                    QStringLiteral("forward 0"), QStringLiteral("back 0"),
                    QStringLiteral("title Page 4"), QStringLiteral("fit page"),
                    QStringLiteral("chapter 10"), QStringLiteral("printable 1"),
                    QStringLiteral("summary PAG028 Sommaire"), QStringLiteral("show page")));
    EXPECT_THAT(test_support::describe(bench.drawn.recording),
                ElementsAre(QStringLiteral("print 0,117 \"Page 4\" Arial 14.25 bold"),
                            QStringLiteral("print 0,0 \"Bonjour\" Arial 10")));
}

TEST(PageLoader, handsOnWhatThePageAsksOfTheWindow) {
    test_support::LogicBench bench(
        {page(1, QStringLiteral("##TITBARtitre\r\n##VIDEO\r\n")), page(2)});
    bench.pages.showCurrentRecord();
    const QString caption = QStringLiteral("caption Orvalente - KAROPE");
    EXPECT_TRUE(
        bench.collaborators.log.contains(caption + QString(18, u' ') + QStringLiteral("titre")));
    EXPECT_TRUE(bench.collaborators.log.contains(QStringLiteral("video frame")))
        << "even without a name";
    bench.collaborators.log.clear();
    bench.actions.run(QStringLiteral("PAG002"));
    EXPECT_EQ(bench.collaborators.log.filter(QStringLiteral("caption")), QStringList(caption));
    EXPECT_FALSE(bench.collaborators.log.contains(QStringLiteral("video frame")));
}

TEST(PageLoader, startsEachPageFromTheSameState) {
    test_support::LogicBench bench(
        {page(1, QStringLiteral("a¶\r\n##SI20\r\n##DECLIG9\r\n##OBJILLUS\r\nb¶\r\n"))});
    bench.pages.showCurrentRecord();
    const QStringList drawn = test_support::describe(bench.drawn.recording);
    EXPECT_EQ(drawn.value(1), QStringLiteral("print 0,0 \"a\" Arial 10"));
    bench.pages.showCurrentRecord();
    EXPECT_EQ(test_support::describe(bench.drawn.recording), drawn);
}

TEST(PageLoader, linksMenusAndHalfACaptionEndWithTheirPage) {
    test_support::LogicBench bench(
        {page(1, QStringLiteral("##LIERTa#PAG002\r\n##LIERFzz\r\n##ADMENb#PAG002\r\n##LIER1c\r\n")),
         page(2)});
    const markup::LinkTable& links = bench.drawn.links;
    const auto* entries = links.menusFlottants.slot(0);
    for (int visit = 0; visit < 3; ++visit) {
        bench.actions.run(QStringLiteral("PAG001"));
        EXPECT_TRUE(links.Labelien.slot(0)->visible);
        EXPECT_EQ(entries->slot(0)->caption, QStringLiteral("b"));
        EXPECT_TRUE(entries->slot(1)->caption.isEmpty());
    }
    bench.actions.run(QStringLiteral("PAG002"));
    EXPECT_FALSE(links.Labelien.slot(0)->visible);
    EXPECT_TRUE(links.Imagelien.slot(0)->link.tag.isEmpty());
    EXPECT_TRUE(entries->slot(0)->caption.isEmpty());
    EXPECT_TRUE(bench.drawing.state.lienEnAttente.isEmpty());
}

TEST(PageLoader, readsTheSummaryAsANumber) {
    struct Row {
        FieldValue field;
        QString summary;
    };
    const QList<Row> rows = {
        {FieldValue{}, QStringLiteral("PAG001 Accueil")},
        {FieldValue{0.0}, QStringLiteral("PAG001 Accueil")},
        {FieldValue{-3.0}, QStringLiteral("PAG001 Accueil")},
        {FieldValue{1.0}, QStringLiteral("PAG001 Accueil")},
        {FieldValue{30.0}, QStringLiteral("PAG030 Sommaire")},
        {FieldValue{QStringLiteral("28 (bis)")}, QStringLiteral("PAG028 Sommaire")},
        {FieldValue{QStringLiteral("sans")}, QStringLiteral("PAG001 Accueil")},
        {FieldValue{1e12}, QStringLiteral("PAG001 Accueil")}};
    for (const Row& row : rows) {
        test_support::LogicBench bench({page(4, {}, {{QStringLiteral("sommaire"), row.field}})});
        bench.pages.showCurrentRecord();
        EXPECT_EQ(bench.view.summary, row.summary);
    }
}

TEST(PageLoader, showsAPageWithWhateverFieldsItHas) {
    // No fields but these: the others show as empty or unchecked.
    test_support::LogicBench poor(
        {{{QStringLiteral("Numeropage"), 3.0}, {QStringLiteral("fpc"), QStringLiteral("x¶\r\n")}}});
    poor.pages.showCurrentRecord();
    EXPECT_TRUE(poor.collaborators.log.contains(QStringLiteral("chapter 00")));
    EXPECT_TRUE(poor.collaborators.log.contains(QStringLiteral("title ")));
    EXPECT_EQ(poor.drawn.recording.size(), 1U);
    EXPECT_EQ(poor.history(), QList<int>{3});

    // A field that cannot be read leaves what its control held.
    test_support::LogicBench damaged(
        {page(1, QStringLiteral("un¶\r\n")), page(2, QStringLiteral("deux¶\r\n"))});
    damaged.cours.unreadable = QStringList{QStringLiteral("fpc")};
    damaged.bound.moveTo(1);
    damaged.pages.showCurrentRecord();
    EXPECT_EQ(damaged.bound.TextID, QStringLiteral("2"));
    EXPECT_EQ(test_support::describe(damaged.drawn.recording).last(),
              QStringLiteral("print 0,0 \"un\" Arial 10"));
}

TEST(PageLoader, tellsOfAPageThatCannotBeReadBehindWhatItShows) {
    test_support::LogicBench bench({page(1), page(2)});
    const auto linesOf = [&bench](const auto& show) {
        bench.collaborators.log.clear();
        show();
        QStringList& log = bench.collaborators.log;
        return log.mid(log.indexOf(QStringLiteral("show page")) + 1);
    };
    const QString told = QStringLiteral("page unread");
    const auto byNumber = [&] { bench.actions.run(QStringLiteral("PAG002")); };
    const auto byOrder = [&] { bench.actions.showPageByOrder(2); };
    EXPECT_FALSE(linesOf(byNumber).contains(told));
    for (const char* const field : {"fpc", "Numeropage", "suite"}) {
        bench.cours.unreadable = QStringList{QString::fromLatin1(field)};
        EXPECT_TRUE(linesOf(byNumber).contains(told)) << field;
        EXPECT_TRUE(linesOf(byOrder).contains(told)) << field;
    }
    bench.cours.unreadable.clear();
    EXPECT_FALSE(linesOf(byOrder).contains(told));
    bench.cours.isGone = true; // the whole record, though the table counts it
    EXPECT_TRUE(linesOf(byNumber).contains(told));
    const auto nowhere = [&] { bench.actions.run(QStringLiteral("PAG900")); };
    EXPECT_FALSE(linesOf(nowhere).contains(told)) << "no page was wanted that there is";
}

/// Keeps what had happened when it was read.
class WatchedRecords : public test_support::MemoryRecordset {
public:
    WatchedRecords(QList<Record> all, const QStringList& log)
        : MemoryRecordset(std::move(all)), log_(log) {}

    bool setAbsolutePosition(int position) override {
        before = log_;
        return MemoryRecordset::setAbsolutePosition(position);
    }
    QStringList before;

private:
    const QStringList& log_;
};

TEST(PageLoader, hasTheHourglassUpBeforeItReads) {
    const QList<test_support::MemoryRecordset::Record> course{page(1), page(2)};
    test_support::LogicBench bench(course);
    WatchedRecords records(course, bench.collaborators.log);
    bench.bound.bindTo(records);
    for (const char* const code : {"PAG001", "PAG002"}) {
        bench.collaborators.log.clear();
        bench.actions.run(QString::fromLatin1(code));
        EXPECT_THAT(records.before, ElementsAre(QStringLiteral("hourglass"))) << code;
        EXPECT_EQ(bench.collaborators.log.last(), QStringLiteral("normal pointer")) << code;
    }
}

TEST(PageLoader, withoutDatabaseShowsAnEmptyPage) {
    test_support::LogicBench bench({});
    bench.actions.run(QStringLiteral("PAG001"));
    EXPECT_EQ(bench.collaborators.log.last(), QStringLiteral("normal pointer"));
    EXPECT_TRUE(bench.collaborators.log.contains(QStringLiteral("show page")));
    EXPECT_EQ(bench.drawn.recording.size(), 0U);
}

} // namespace
