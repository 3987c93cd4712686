#include "look/icon.h"
#include "look/palette.h"
#include "support/files.h"

#include <QDir>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

namespace {

using namespace look;

QImage drawn(const QString& name, Icon::Style style) {
    QImage image(48, 48, QImage::Format_RGB32);
    image.fill(QColor::fromRgb(kIvory));
    QPainter painter(&image);
    Icon(name).paint(painter, image.rect(), style, kIvory);
    return image;
}

TEST(Icon, everyDrawingPaintsInEveryStyle) {
    QImage empty(48, 48, QImage::Format_RGB32);
    empty.fill(QColor::fromRgb(kIvory));
    const QStringList files = QDir(QStringLiteral(":/look/icons")).entryList();
    EXPECT_GT(files.size(), 30);
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        const QImage coloured = drawn(name, Icon::Style::Coloured);
        EXPECT_NE(coloured, empty) << qPrintable(name);
        EXPECT_NE(drawn(name, Icon::Style::Faded), empty) << qPrintable(name);
        EXPECT_NE(drawn(name, Icon::Style::Faded), coloured) << qPrintable(name);
        EXPECT_NE(drawn(name, Icon::Style::White), coloured) << qPrintable(name);
    }
    EXPECT_EQ(drawn(QStringLiteral("no such drawing"), Icon::Style::Coloured), empty);
}

TEST(Icon, fadesToFortyPerCentOfEachColour) {
    // The middle of the printer's tray has the accent, its frame the blue.
    const QImage faded = drawn(QStringLiteral("print"), Icon::Style::Faded);
    EXPECT_EQ(faded.pixel(24, 34), blend(kPressedTint, kIvory, 0.4));
}

QImage drawnFrom(const QByteArray& drawing) {
    QImage image(96, 96, QImage::Format_RGB32);
    image.fill(QColor::fromRgb(kIvory));
    QPainter painter(&image);
    QSvgRenderer renderer(drawing);
    EXPECT_TRUE(renderer.isValid());
    renderer.render(&painter);
    return image;
}

TEST(Icon, everyLineOfEveryDrawingShows) {
    static const QRegularExpression kShape(QStringLiteral("<(path|circle|ellipse|rect)[^>]*/>"));
    for (const char* folder : {":/look/icons/", ":/look/faces/", ":/look/fields/"})
        for (const QString& file : QDir(folder).entryList()) {
            SCOPED_TRACE(qPrintable(file));
            const QString whole = test_support::readFile(folder + file);
            const QImage all = drawnFrom(whole.toUtf8());
            int shapes = 0;
            for (const auto& shape : kShape.globalMatch(whole)) {
                ++shapes;
                const QString without =
                    QString(whole).remove(shape.capturedStart(), shape.capturedLength());
                EXPECT_NE(drawnFrom(without.toUtf8()), all) << qPrintable(shape.captured());
            }
            EXPECT_GT(shapes, 0);
        }
}

/// What leads back is the mirror image of what leads on.
TEST(Icon, pairsMirrorEachOther) {
    const struct {
        const char* name;
        const char* mirrored;
        bool acrossRow;
    } pairs[] = {{"next-page", "previous-page", true},
                 {"next-in-chapter", "previous-in-chapter", true},
                 {"to-end", "to-start", true},
                 {"step", "back-step", true},
                 {"down", "up", false}};
    for (const auto& pair : pairs) {
        const QImage one = drawn(pair.name, Icon::Style::Coloured);
        const QImage other =
            drawn(pair.mirrored, Icon::Style::Coloured).mirrored(pair.acrossRow, !pair.acrossRow);
        int different = 0;
        for (int y = 0; y < one.height(); ++y)
            for (int x = 0; x < one.width(); ++x)
                different += qAbs(qGreen(one.pixel(x, y)) - qGreen(other.pixel(x, y))) > 40;
        EXPECT_LT(different, 20) << pair.name; // edges may be rounded the other way
    }
}

} // namespace
