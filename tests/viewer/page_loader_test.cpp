#include "viewer/logic_bench.h"
#include "viewer/page_loader.h"

#include <gmock/gmock.h>

namespace {

using coursedata::FieldValue;
using test_support::page;
using testing::ElementsAre;

TEST(PageLoader, ShowsARecordInAFixedOrder) {
    test_support::LogicBench bench(
        {page(4, QStringLiteral("Bonjour¶\r\n"),
              {{u"precedent"_qs, true}, {u"imprimable"_qs, true}, {u"sommaire"_qs, 28.0}})});
    bench.pages.showCurrentRecord();
    EXPECT_THAT(bench.neighbours.log,
                ElementsAre(u"hide page"_qs, u"free links"_qs, u"hide bar"_qs, u"clear pictures"_qs,
                            u"close video"_qs, u"caption Orvalente - KAROPE"_qs, u"forward 0"_qs,
                            u"back 0"_qs, u"title Page 4"_qs, u"fit page"_qs, u"chapter 10"_qs,
                            u"printable 1"_qs, u"summary PAG028 Sommaire"_qs, u"show page"_qs));
    EXPECT_THAT(test_support::describe(bench.drawn.recording),
                ElementsAre(u"print 0,117 \"Page 4\" Arial 14.25 bold"_qs,
                            u"print 0,0 \"Bonjour\" Arial 10"_qs));
}

TEST(PageLoader, HandsOnWhatThePageAsksOfTheWindow) {
    test_support::LogicBench bench({page(1, u"##TITBARtitre\r\n##VIDEO\r\n"_qs), page(2)});
    bench.pages.showCurrentRecord();
    const QString caption = u"caption Orvalente - KAROPE"_qs;
    EXPECT_TRUE(bench.neighbours.log.contains(caption + QString(18, u' ') + u"titre"_qs));
    EXPECT_TRUE(bench.neighbours.log.contains(u"video frame"_qs)) << "even without a name";
    bench.neighbours.log.clear();
    bench.actions.run(u"PAG002"_qs);
    EXPECT_EQ(bench.neighbours.log.filter(u"caption"_qs), QStringList(caption));
    EXPECT_FALSE(bench.neighbours.log.contains(u"video frame"_qs));
}

TEST(PageLoader, StartsEachPageFromTheSameState) {
    test_support::LogicBench bench(
        {page(1, u"a¶\r\n##SI20\r\n##DECLIG9\r\n##OBJILLUS\r\nb¶\r\n"_qs)});
    bench.pages.showCurrentRecord();
    const QStringList drawn = test_support::describe(bench.drawn.recording);
    EXPECT_EQ(drawn.value(1), u"print 0,0 \"a\" Arial 10"_qs);
    bench.pages.showCurrentRecord();
    EXPECT_EQ(test_support::describe(bench.drawn.recording), drawn);
}

TEST(PageLoader, LinksMenusAndHalfACaptionEndWithTheirPage) {
    test_support::LogicBench bench(
        {page(1, u"##LIERTa#PAG002\r\n##LIERFzz\r\n##ADMENb#PAG002\r\n##LIER1c\r\n"_qs), page(2)});
    const markup::LinkTable& links = bench.drawn.links;
    const auto* entries = links.menusFlottants.slot(0);
    for (int visit = 0; visit < 3; ++visit) {
        bench.actions.run(u"PAG001"_qs);
        EXPECT_TRUE(links.Labelien.slot(0)->visible);
        EXPECT_EQ(entries->slot(0)->caption, u"b"_qs);
        EXPECT_TRUE(entries->slot(1)->caption.isEmpty());
    }
    bench.actions.run(u"PAG002"_qs);
    EXPECT_FALSE(links.Labelien.slot(0)->visible);
    EXPECT_TRUE(links.Imagelien.slot(0)->link.tag.isEmpty());
    EXPECT_TRUE(entries->slot(0)->caption.isEmpty());
    EXPECT_TRUE(bench.drawing.state.lienEnAttente.isEmpty());
}

TEST(PageLoader, ReadsTheSummaryAsANumber) {
    struct Row {
        FieldValue field;
        QString summary;
    };
    const QList<Row> rows = {{FieldValue{}, u"PAG001 Accueil"_qs},
                             {FieldValue{0.0}, u"PAG001 Accueil"_qs},
                             {FieldValue{-3.0}, u"PAG001 Accueil"_qs},
                             {FieldValue{1.0}, u"PAG001 Accueil"_qs},
                             {FieldValue{30.0}, u"PAG030 Sommaire"_qs},
                             {FieldValue{u"28 (bis)"_qs}, u"PAG028 Sommaire"_qs},
                             {FieldValue{u"sans"_qs}, u"PAG001 Accueil"_qs},
                             {FieldValue{1e12}, u"PAG001 Accueil"_qs}};
    for (const Row& row : rows) {
        test_support::LogicBench bench({page(4, {}, {{u"sommaire"_qs, row.field}})});
        bench.pages.showCurrentRecord();
        EXPECT_EQ(bench.view.summary, row.summary);
    }
}

TEST(PageLoader, ShowsAPageWithWhateverFieldsItHas) {
    // No fields but these: the others show as empty or unchecked.
    test_support::LogicBench poor({{{u"Numeropage"_qs, 3.0}, {u"fpc"_qs, u"x¶\r\n"_qs}}});
    poor.pages.showCurrentRecord();
    EXPECT_TRUE(poor.neighbours.log.contains(u"chapter 00"_qs));
    EXPECT_TRUE(poor.neighbours.log.contains(u"title "_qs));
    EXPECT_EQ(poor.drawn.recording.size(), 1U);
    EXPECT_EQ(poor.history(), QList<int>{3});

    // A field that cannot be read leaves what its control held.
    test_support::LogicBench damaged({page(1, u"un¶\r\n"_qs), page(2, u"deux¶\r\n"_qs)});
    damaged.cours.unreadable = QStringList{u"fpc"_qs};
    damaged.bound.moveTo(1);
    damaged.pages.showCurrentRecord();
    EXPECT_EQ(damaged.bound.TextID, u"2"_qs);
    EXPECT_EQ(test_support::describe(damaged.drawn.recording).last(),
              u"print 0,0 \"un\" Arial 10"_qs);
}

TEST(PageLoader, WithoutDatabaseShowsAnEmptyPage) {
    test_support::LogicBench bench({});
    bench.actions.run(u"PAG001"_qs);
    EXPECT_EQ(bench.neighbours.log.last(), u"normal pointer"_qs);
    EXPECT_TRUE(bench.neighbours.log.contains(u"show page"_qs));
    EXPECT_EQ(bench.drawn.recording.size(), 0U);
}

} // namespace
