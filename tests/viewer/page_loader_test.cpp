#include "viewer/logic_bench.h"
#include "viewer/page_loader.h"

#include <gmock/gmock.h>

namespace {

using coursedata::FieldValue;
using test_support::page;
using testing::ElementsAre;

TEST(PageLoader, showsARecordInAFixedOrder) {
    test_support::LogicBench bench(
        {page(4, QStringLiteral("Bonjour¶\r\n"),
              {{u"precedent"_qs, true}, {u"imprimable"_qs, true}, {u"sommaire"_qs, 28.0}})});
    bench.pages.showCurrentRecord();
    EXPECT_THAT(bench.neighbours.log,
                ElementsAre(u"hide page"_qs, u"free links"_qs, u"hide bar"_qs, u"clear pictures"_qs,
                            u"close video"_qs, u"caption Orvalente - KAROPE"_qs, u"title Page 4"_qs,
                            u"forward 0"_qs, u"back 0"_qs, u"fit page"_qs, u"chapter 10"_qs,
                            u"printable 1"_qs, u"summary PAG028 Sommaire"_qs, u"show page"_qs));
    EXPECT_THAT(test_support::describe(bench.window.recording),
                ElementsAre(QStringLiteral("print 0,0 \"Bonjour\" Arial 10")));
}

TEST(PageLoader, startsEachPageFromTheSameState) {
    test_support::LogicBench bench({page(1, QStringLiteral("a¶\r\n##OBJILLUS\r\nb¶\r\n"))});
    markup::DrawingState& drawing = bench.window.state;
    for (int visit = 0; visit < 2; ++visit) {
        bench.window.recording.clear();
        bench.pages.showCurrentRecord();
        EXPECT_EQ(drawing.surfaceDessin, &bench.window.illus);
        EXPECT_EQ(test_support::describe(bench.window.recording).first(),
                  QStringLiteral("print 0,0 \"a\" Arial 10"));
        // What printing, the test or a page with a video may leave behind.
        drawing.hauteurPage = 5000;
        drawing.surfaceDessin = &bench.window.printer;
        drawing.fenetreSource = nullptr;
        drawing.enImpression = true;
        drawing.videoPage = QStringLiteral("film.avi");
    }
    bench.pages.showCurrentRecord();
    EXPECT_FALSE(drawing.enImpression);
    EXPECT_TRUE(drawing.videoPage.isEmpty());
    EXPECT_EQ(drawing.fenetreSource, &bench.window);
}

TEST(PageLoader, linksMenusAndHalfACaptionEndWithTheirPage) {
    test_support::LogicBench bench(
        {page(1, u"##LIERTa#PAG002\r\n##LIERFzz\r\n##ADMENb#PAG002\r\n##LIER1c\r\n"_qs), page(2)});
    markup::DrawingState& drawing = bench.window.state;
    const auto* entries = drawing.links.menusFlottants.slot(0);
    for (int visit = 0; visit < 3; ++visit) {
        bench.actions.run(u"PAG001"_qs);
        EXPECT_TRUE(drawing.links.Labelien.slot(0)->visible);
        EXPECT_EQ(entries->slot(0)->caption, u"b"_qs);
        EXPECT_TRUE(entries->slot(1)->caption.isEmpty());
    }
    bench.actions.run(u"PAG002"_qs);
    EXPECT_FALSE(drawing.links.Labelien.slot(0)->visible);
    EXPECT_TRUE(drawing.links.Imagelien.slot(0)->link.tag.isEmpty());
    EXPECT_TRUE(entries->slot(0)->caption.isEmpty());
    EXPECT_TRUE(drawing.lienEnAttente.isEmpty());
}

TEST(PageLoader, readsTheSummaryAsANumber) {
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

TEST(PageLoader, showsAPageWithWhateverFieldsItHas) {
    // No fields but these: the others show as empty or unchecked.
    test_support::LogicBench poor({{{u"Numeropage"_qs, 3.0}, {u"fpc"_qs, u"x¶\r\n"_qs}}});
    poor.pages.showCurrentRecord();
    EXPECT_TRUE(poor.neighbours.log.contains(u"chapter 00"_qs));
    EXPECT_TRUE(poor.neighbours.log.contains(u"title "_qs));
    EXPECT_EQ(poor.window.recording.size(), 1U);
    EXPECT_EQ(poor.history(), QList<int>{3});

    // A field that cannot be read leaves what its control held.
    test_support::LogicBench damaged({page(1, u"un¶\r\n"_qs), page(2, u"deux¶\r\n"_qs)});
    damaged.cours.unreadable = QStringList{u"fpc"_qs};
    damaged.pages.moveTo(1);
    damaged.pages.showCurrentRecord();
    EXPECT_EQ(damaged.bound.TextID, u"2"_qs);
    EXPECT_EQ(test_support::describe(damaged.window.recording).first(),
              u"print 0,0 \"un\" Arial 10"_qs);
}

TEST(PageLoader, withoutDatabaseShowsAnEmptyPage) {
    test_support::LogicBench bench({});
    bench.actions.run(u"PAG001"_qs);
    EXPECT_EQ(bench.neighbours.log.last(), u"normal pointer"_qs);
    EXPECT_TRUE(bench.neighbours.log.contains(u"show page"_qs));
    EXPECT_EQ(bench.window.recording.size(), 0U);
}

} // namespace
