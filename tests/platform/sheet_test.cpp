#include "look/field_pictures.h"
#include "output/raster/raster_surface.h"
#include "platform/sheets.h"
#include "support/recording_text.h"

#include <gmock/gmock.h>

namespace {

using page::FieldControl;
using page::SurfaceId;
using testing::ElementsAre;

QStringList described(const page::Sheet& sheet) {
    page::Recording recording;
    for (const page::DrawnOperation& operation : sheet.operations)
        std::visit([&](const auto& drawn) { recording.add(drawn); }, operation);
    return test_support::describe(recording);
}

page::FieldOperation field(FieldControl control, double x, double y, int index = 0) {
    page::FieldOperation operation;
    operation.surface = SurfaceId::PictureTexte;
    operation.control = control;
    operation.index = index;
    operation.x = x;
    operation.y = y;
    operation.width = 360;
    return operation;
}

struct SheetTest : testing::Test, SheetCase {};

TEST_F(SheetTest, showsAnswerControlsOnTopWhereTheyWerePlacedLast) {
    recording.add(field(FieldControl::Text1, 0, 0));
    recording.add(field(FieldControl::Option1, 15, 30));
    recording.add(field(FieldControl::Option1, 15, 60, 1));
    auto label = field(FieldControl::Labelien, 300, 90);
    label.caption = QStringLiteral("la loi");
    label.tag = QStringLiteral("12");
    recording.add(label);
    recording.add(field(FieldControl::Text1, 600, 900));
    printAt(0, 0, QStringLiteral("a"));

    const page::Sheet plain = sheet();
    EXPECT_THAT(described(plain).sliced(0, 1),
                ElementsAre(QStringLiteral("print 0,0 \"a\" Arial 10")));
    // Without pictures, frames of 13 pixels.
    EXPECT_EQ(described(plain)[1], QStringLiteral("line 15,30 195,30 #8c8472"));
    EXPECT_THAT(described(sheet(look::fieldPictures())),
                ElementsAre(QStringLiteral("print 0,0 \"a\" Arial 10"),
                            QStringLiteral("symbol 15,30 195,195 "),
                            QStringLiteral("symbol 15,60 195,195 "),
                            QStringLiteral("print 300,90 \"la loi\" Arial 10"),
                            QStringLiteral("fill 600,900 360,360 #ffffff"),
                            QStringLiteral("line 600,900 945,900 #8c8472"),
                            QStringLiteral("line 600,1245 945,1245 #8c8472"),
                            QStringLiteral("line 600,900 600,1245 #8c8472"),
                            QStringLiteral("line 945,900 945,1245 #8c8472")));
    ASSERT_EQ(plain.links.size(), 1u);
    EXPECT_EQ(plain.links[0].tag + plain.links[0].caption, QStringLiteral("12la loi"));
    EXPECT_EQ(page::drawnHeight(plain.operations, SurfaceId::PictureTexte, fonts), 1260);
}

TEST_F(SheetTest, theRasterIsThatOfTheScreenCutAtTheSurfacesEdge) {
    printAt(0, 0, QStringLiteral("Un mot qui sort de la surface par la droite, et pas qu’un peu"));
    surface.line(0, 600, 9000, 615);
    surface.fill(150, 0, 900, 300, 0xffdce6ff, page::FillMode::Mask);
    surface.fill(3000, 2900, 900, 900, 0xffff0000, page::FillMode::Copy);
    surface.paint(std::make_shared<test_support::PlainPicture>(QSize(20, 20)), 300, 300, {}, false);
    for (const double scale : {1.0, 1.5, 2.0, 3.2}) {
        output::RasterSurface screen(SurfaceId::PictureTexte, 300, fonts, 0xffffffff);
        screen.setDevicePixelRatio(scale);
        screen.play(recording);
        QImage whole(qCeil(320 * scale), qCeil(220 * scale), QImage::Format_RGB32);
        whole.fill(Qt::white);
        QPainter painter(&whole);
        QImage column = screen.image(200);
        column.setDevicePixelRatio(1);
        painter.translate(qRound(10 * scale), qRound(10 * scale));
        painter.drawImage(0, 0, column);
        screen.paintMargin(painter, recording, 200, QRect(-8, -8, 316, 216));
        painter.end();
        // Slanted lines are cut in another way: a shade here and there.
        EXPECT_LE(difference(raster(sheet(), scale), whole), 8) << scale;
    }
}

TEST_F(SheetTest, bandsJoinWithoutASeam) {
    for (int line = 0; line < 12; ++line)
        printAt(line * 7, line * 210, QStringLiteral("Ligne gÀ"));
    surface.line(0, 0, 4000, 3000);
    const page::Sheet narrow = sheet();
    page::Sheet wide = narrow; // has shorter bands
    wide.width *= 16;
    output::SheetRaster bands(fonts, 7);
    ASSERT_EQ(bands.bandRows(narrow), bands.size(narrow).height());
    ASSERT_LT(bands.bandRows(wide), bands.size(wide).height() / 2);
    const QImage whole = raster(narrow, 7);
    const QImage joined = raster(wide, 7).copy(whole.rect());
    EXPECT_LE(difference(joined, whole), 8);
}

} // namespace
