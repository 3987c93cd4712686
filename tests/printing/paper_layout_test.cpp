#include "page/surface.h"
#include "support/fake_pictures.h"
#include "support/fixed_metrics.h"
#include "support/printing.h"
#include "viewer/paper_layout.h"

#include <gtest/gtest.h>

namespace {

using page::FillMode;
using page::TextOperation;

/// Paper with room for 10,000 twips above a footer of 200.
constexpr platform::Paper kPaper{12000, 11700, 600, 600, 10800, 10500};

class PaperLayout : public testing::Test {
protected:
    void line(double y, const QString& text, bool bold = false) {
        surface.setBold(bold);
        surface.setPenX(0);
        surface.setPenY(y);
        surface.print(text);
    }
    void picture(double y, double height) {
        surface.setPenY(y);
        surface.paint(std::make_shared<test_support::PlainPicture>(QSize(1, 1)), 3000, height, "p",
                      false);
    }
    std::vector<page::Sheet> sheets(const platform::Paper& paper = kPaper) const {
        return viewer::layOnPaper(recording, {QStringLiteral("pied"), {}}, paper, metrics);
    }

    /// What stands on a sheet: texts with their heights, "image" and "blanc" with theirs.
    static QStringList on(const page::Sheet& sheet) {
        QStringList all;
        for (const auto& operation : sheet.operations)
            if (const auto* text = std::get_if<TextOperation>(&operation))
                all.append(text->text + QStringLiteral(" %1").arg(text->y));
            else if (const auto* painted = std::get_if<page::PictureOperation>(&operation))
                all.append(QStringLiteral("image %1").arg(painted->y));
            else if (const auto* fill = std::get_if<page::FillOperation>(&operation))
                all.append(QStringLiteral("%1 %2")
                               .arg(fill->ink == 0xffffffff ? "blanc" : "fond")
                               .arg(fill->y));
        return all;
    }

    test_support::FixedMetrics metrics;
    page::Recording recording;
    page::Surface surface{page::SurfaceId::Printer, 9000, metrics, recording};
};

TEST_F(PaperLayout, everyLineOfALongPageStandsWholeOnOneSheet) {
    for (int i = 0; i < 170; ++i)
        line(i * 190.0, QString::number(i)); // lines a little closer than their height
    QStringList read;
    const auto all = sheets();
    for (const auto& sheet : all)
        for (const auto& operation : sheet.operations) {
            const auto& text = std::get<TextOperation>(operation);
            read.append(text.text);
            EXPECT_GE(text.y, 0);
            EXPECT_LE(text.y + 200, text.text == u"pied" ? 10500 - 200 : 10040);
        }
    ASSERT_EQ(read.size(), 171);
    for (int i = 0; i < 170; ++i)
        EXPECT_EQ(read[i], QString::number(i));
    EXPECT_EQ(read.last(), "pied");
    EXPECT_EQ(all.size(), 4u);
}

TEST_F(PaperLayout, whereAPageIsCut) {
    const struct {
        const char* name;
        std::function<void()> draw;
        QList<QStringList> sheets;
    } rows[] = {
        {"nothing", [] {}, {{"pied 10100"}}},
        {"what just fits", [&] { line(9800, "a"); }, {{"a 9800", "pied 10100"}}},
        {"at the top of the line that does not fit",
         [&] { line(9700, "a"), line(9850, "b"), line(12500, "fin"); },
         {{"a 9700"}, {"b 0", "fin 2650", "pied 10100"}}},
        {"a picture goes on whole",
         [&] { line(4000, "a"), picture(5000, 6000), line(12500, "fin"); },
         {{"a 4000"}, {"image 0", "fin 7500", "pied 10100"}}},
        {"one taller than a sheet shows on each, the foot being free",
         [&] { line(0, "a"), picture(1000, 12000); },
         {{"a 0", "image 1000", "blanc 10000"}, {"image -9000", "pied 10100"}}},
        {"rather a picture than a line, when a sheet would be nearly empty",
         [&] { line(0, "a"), picture(200, 9900), line(9900, "b"), line(12500, "fin"); },
         {{"a 0", "image 200", "blanc 9940"}, {"image -9700", "b 0", "fin 2600", "pied 10100"}}},
        {"a row of a table goes with its ground",
         [&] {
             surface.fill(0, 9000, 9000, 1200, 0xff00ffff, FillMode::Copy);
             line(9100, "a"), line(9900, "b");
             line(8000, "c"), line(12500, "fin");
         },
         {{"c 8000"}, {"fond 0", "a 100", "b 900", "fin 3500", "pied 10100"}}},
        {"a heading goes with what follows",
         [&] { line(9000, "a"), line(9500, "t", true), line(9900, "b"), line(12500, "fin"); },
         {{"a 9000"}, {"t 0", "b 400", "fin 3000", "pied 10100"}}},
        {"so does a heading above the bold first row of a table",
         [&] {
             line(9000, "a"), line(9300, "t", true), line(9600, "r", true), line(9900, "b");
             line(12500, "fin");
         },
         {{"a 9000"}, {"t 0", "r 300", "b 600", "fin 3200", "pied 10100"}}},
        {"bold words in a line are no heading",
         [&] { line(9500, "a"), line(9500, "t", true), line(9900, "b"), line(12500, "fin"); },
         {{"a 9500", "t 9500"}, {"b 0", "fin 2600", "pied 10100"}}},
        {"huge letters go on, in parts",
         [&] {
             surface.setFontPoints(1000);
             line(9700, "A");
             surface.setFontPoints(10);
         },
         {{}, {"A 0", "blanc 10000"}, {"A -10000", "pied 10100"}}},
        {"a gap gives no empty sheet",
         [&] { line(0, "a"), line(90000, "b"), line(90200, " "); },
         {{"a 0"}, {"b 0", "pied 10100"}}},
        {"below the tallest page nothing is printed",
         [&] { line(0, "a"), line(600'000, "b"), line(1e30, "c"); },
         {{"a 0", "pied 10100"}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        recording.clear();
        row.draw();
        QList<QStringList> found;
        for (const auto& sheet : sheets())
            found.append(on(sheet));
        EXPECT_EQ(found, row.sheets);
    }
}

TEST_F(PaperLayout, aPageALittleTooLongIsReducedToOneSheet) {
    line(0, "a"), line(11900, "b");
    const auto reduced = sheets();
    ASSERT_EQ(reduced.size(), 1u);
    EXPECT_NEAR(reduced[0].width / kPaper.width, 1.196, 0.001);
    line(12100, "c");
    const auto whole = sheets();
    ASSERT_EQ(whole.size(), 2u);
    EXPECT_EQ(whole[0].width, kPaper.width);
}

TEST_F(PaperLayout, onNarrowPaperTheSheetIsReducedAsAWhole) {
    line(0, "a");
    const platform::Paper narrow{7000, 9000, 500, 500, 6000, 8000};
    const auto all = sheets(narrow);
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0].width, 10500);
    EXPECT_EQ(all[0].surfaces[0].width, 9000);
    EXPECT_EQ(on(all[0]), (QStringList{"a 0", "pied 11600"}));
    // Paper that a driver reports without room still gives sheets.
    for (int i = 0; i < 50; ++i)
        line(i * 200.0, "b");
    EXPECT_FALSE(sheets({0, 0, 0, 0, 0, 0}).empty());
}

} // namespace
