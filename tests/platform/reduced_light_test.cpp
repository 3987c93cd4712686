#include "look/coloured_area.h"
#include "look/keeps_colours.h"
#include "look/light_filter.h"
#include "look/palette.h"
#include "look/reduced_light.h"
#include "platform/painted.h"

#include <QDialog>
#include <QGraphicsEffect>
#include <QPainter>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using namespace look;

double luminance(QRgb colour) {
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

double contrast(QRgb a, QRgb b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(LightFilter, whatIsReadCanStillBeRead) {
    constexpr QRgb kLink = 0xff0000c8, kPageRed = 0xffc80000, kBlack = 0xff000000;
    const struct {
        QRgb ink, ground;
        double least; ///< contrast
    } rows[] = {{kBlack, kPaper, 12}, {kInk, kIvory, 12},      {kMuted, kIvory, 4.5},
                {kBlue, kPaper, 4.5}, {kLink, kPaper, 4.5},    {kPageRed, kPaper, 4.5},
                {kRed, kPaper, 4.5},  {kGreen, kGreenTint, 4}, {kBlack, kMarkTint, 4.5},
                {kPaper, kBlue, 4.5}, {kEdge, kPaper, 2.5}};
    for (const auto& row : rows)
        EXPECT_GE(contrast(withReducedLight(row.ink), withReducedLight(row.ground)), row.least)
            << colour(row.ink) << " on " << colour(row.ground);
    for (const QRgb light : {kPaper, kIvory, kHoverTint})
        EXPECT_LT(luminance(withReducedLight(light)), 0.05) << colour(light);
    // What is blue stays blue, and what is red, red.
    EXPECT_NEAR(QColor(withReducedLight(kLink)).hue(), QColor(kLink).hue(), 3);
    EXPECT_NEAR(QColor(withReducedLight(kPageRed)).hue(), QColor(kPageRed).hue(), 3);
    EXPECT_EQ(withReducedLight(0), 0U) << "what shows nothing";
}

/// A drawing on a transparent ground: a line, a letter, an area as light as paper, a spectrum with
/// a white letter on it.
class Drawing : public testing::Test {
protected:
    Drawing() {
        drawing.fill(Qt::transparent);
        QPainter painter(&drawing);
        painter.fillRect(5, 5, 90, 2, Qt::black);
        painter.fillRect(kLight, QColor::fromRgb(kIvory));
        painter.fillRect(kSpectrum, Qt::black);
        painter.fillRect(30, 60, 4, 30, Qt::yellow);
        painter.fillRect(kLetter, Qt::white);
    }

    static constexpr QRect kLight{5, 15, 90, 30};
    static constexpr QRect kSpectrum{5, 60, 90, 30};
    static constexpr QRect kLetter{70, 70, 2, 10};
    QImage drawing{100, 100, QImage::Format_ARGB32_Premultiplied};
};

TEST_F(Drawing, keepsTheColoursOfItsAreasAlone) {
    EXPECT_EQ(colouredArea(drawing), QRegion(kSpectrum)); // the letter in it too
}

TEST_F(Drawing, onAGroundOfItsOwnIsKeptWhole) {
    EXPECT_EQ(colouredArea(drawing.convertToFormat(QImage::Format_RGB32)), drawing.rect());
    QImage photograph(100, 100, QImage::Format_ARGB32_Premultiplied);
    photograph.fill(Qt::white);
    QPainter corner(&photograph);
    corner.setCompositionMode(QPainter::CompositionMode_Clear);
    corner.fillRect(0, 0, 4, 4, Qt::transparent);
    corner.end();
    EXPECT_EQ(colouredArea(photograph), QRegion(photograph.rect()) - QRect(0, 0, 4, 4));
}

/// Paper with a picture on it that is blue.
class WithPicture : public QWidget, public KeepsColours {
public:
    using QWidget::QWidget;
    QRegion keptArea() const override { return QRect(10, 10, 20, 20); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.fillRect(10, 10, 20, 20, Qt::blue);
    }
};

TEST(ReducedLight, liesOverAllWindowsWithoutTheirKnowing) {
    QWidget window;
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(kIvory));
    window.setPalette(palette);
    window.resize(100, 100);
    WithPicture page(&window);
    page.setGeometry(20, 20, 60, 60);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    ReducedLight light;
    const QImage plain = painted(window);
    QTest::keyClick(window.windowHandle(), Qt::Key_F12);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.graphicsEffect() != nullptr; }));
    const QImage dark = painted(window);
    EXPECT_EQ(colour(dark.pixel(5, 5)), colour(withReducedLight(kIvory)));
    EXPECT_EQ(colour(dark.pixel(75, 75)), colour(withReducedLight(kPaper)));
    EXPECT_EQ(colour(dark.pixel(40, 40)), "#0000cc") << "a picture keeps its hue";
    QDialog later;
    later.setPalette(palette);
    later.show();
    EXPECT_EQ(colour(painted(later).pixel(5, 5)), colour(withReducedLight(kIvory)));

    QTest::keyClick(window.windowHandle(), Qt::Key_F12);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.graphicsEffect(); }));
    EXPECT_EQ(painted(window), plain);
    EXPECT_EQ(painted(later).pixel(5, 5), kIvory);
}

} // namespace
