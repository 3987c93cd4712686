#include "page/multiply_inks.h"
#include "page/sheet.h"
#include "page/surface.h"
#include "support/fixed_metrics.h"

#include <gtest/gtest.h>

namespace {

using page::FillMode;

class MultiplyInks : public testing::Test {
protected:
    std::vector<QRgb> inks() const {
        page::Sheet sheet{};
        page::putOnSheet(recording, metrics, sheet);
        return page::multiplyInks(sheet.operations, metrics);
    }
    void text(QRgb ink, double y = 100) {
        surface.setPenX(100);
        surface.setPenY(y);
        surface.setInk(ink);
        surface.print(QStringLiteral("ab"));
    }
    void mask(QRgb ink, double height = 600) {
        surface.fill(0, 0, 1000, height, ink, FillMode::Mask);
    }

    test_support::FixedMetrics metrics;
    page::Recording recording;
    page::Surface surface{page::SurfaceId::PictureTexte, 9000, metrics, recording};
};

TEST_F(MultiplyInks, productsOfWhatIsCoveredAreTheAnd) {
    const QRgb text1 = 0xffc86432, fill1 = 0xffdce6ff, fill2 = 0xfff0f080;
    text(text1);
    mask(fill1);
    mask(fill2);
    const auto result = inks();
    const auto product = [&](int (*channel)(QRgb), std::initializer_list<int> indexes) {
        double value = 255;
        for (const int index : indexes)
            value *= channel(result[static_cast<std::size_t>(index)]) / 255.0;
        return value;
    };
    int (*const channels[])(QRgb) = {qRed, qGreen, qBlue};
    for (const auto channel : channels) {
        EXPECT_NEAR(product(channel, {0, 1, 2}), channel(text1 & fill1 & fill2), 1.5);
        EXPECT_NEAR(product(channel, {1, 2}), channel(fill1 & fill2), 1.5) << "on paper";
    }
    EXPECT_EQ(result[2], fill2);
}

TEST_F(MultiplyInks, whatNoFillCoversKeepsItsInk) {
    mask(0xff808080, 600); // drawn before
    text(0xffc86432);      // covered below
    text(0xffc86432, 500); // half outside
    surface.fill(0, 0, 900, 900, 0xff123456, FillMode::Copy);
    mask(0xffdce6ff, 600);
    const auto result = inks();
    EXPECT_NE(result[1], 0xffc86432);
    EXPECT_EQ(result[2], 0xffc86432);
    EXPECT_EQ(result[3], 0xff123456);
}

TEST_F(MultiplyInks, stripsOfAGradientDoNotCoverEachOther) {
    for (int i = 0; i < 3; ++i)
        surface.fill(0, i * 15, 1000, 15, qRgb(255, 255, 200 + i), FillMode::Mask);
    const auto result = inks();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(qBlue(result[static_cast<std::size_t>(i)]), 200 + i);
}

TEST_F(MultiplyInks, blackStaysBlackUnderAnyFill) {
    text(0xff000000);
    mask(0xff000000);
    mask(0xff00ff01);
    EXPECT_EQ(inks()[0], 0xff000000);
}

} // namespace
