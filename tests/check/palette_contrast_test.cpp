// Whether the words in all windows can be read.

#include "check/contrast.h"
#include "exercises/progress_strip.h"
#include "exercises/title_band.h"
#include "look/palette.h"

#include <gtest/gtest.h>

namespace {

using check::contrastOf;

/// The least contrast that the Web Content Accessibility Guidelines 2.1 ask of text, at level AA.
constexpr double kEnough = 4.5;

QRgb multiplied(QRgb tint, QRgb ink) {
    return qRgb(qRed(tint) * qRed(ink) / 255, qGreen(tint) * qGreen(ink) / 255,
                qBlue(tint) * qBlue(ink) / 255);
}

TEST(PaletteContrast, everyTextOfTheWindowsCanBeRead) {
    using namespace look;
    // An ink, and all that it stands on. What is switched off (kEdge) need not be readable.
    const struct {
        const char* ink;
        QRgb colour;
        std::vector<QRgb> grounds;
    } rows[] = {
        {"text", kInk, {kIvory, kPaper, kHoverTint, kPressedTint, kGreenTint}},
        {"secondary text", kMuted, {kIvory, kPaper, kVideoTrack}},
        {"buttons and links", kBlue, {kIvory, kPaper, kHoverTint, kPressedTint}},
        {"pressed buttons", kDarkBlue, {kPressedTint, kPaper, blend(kBlue, kPressedTint, 0.25)}},
        {"main buttons and chosen lines", kPaper, {kBlue, kHoverBlue, kDarkBlue}},
        {"right", kGreen, {kPaper, kIvory, kGreenTint}},
        {"wrong", kRed, {kPaper, kIvory}},
    };
    for (const auto& row : rows)
        for (const QRgb ground : row.grounds)
            EXPECT_GE(contrastOf(row.colour, ground), kEnough)
                << row.ink << " on " << std::hex << ground;
}

TEST(PaletteContrast, tintsOfThePageLeaveItsInksReadable) {
    using namespace look;
    for (const QRgb tint : {kMarkTint, kCurrentMarkTint, kSelectionTint})
        for (const QRgb ink : {QRgb(0xff000000), kBlue})
            EXPECT_GE(contrastOf(multiplied(tint, ink), tint), kEnough) << std::hex << tint;
}

TEST(PaletteContrast, theTestsColoursAreAsLegibleAsTheyAreFixed) {
    const auto captionContrast = [](int state) {
        const exercises::BandInks inks = exercises::bandInks(state);
        return contrastOf(inks.caption, inks.middle);
    };
    EXPECT_GE(captionContrast(0), kEnough);
    // These colours are fixed, and less legible; a sign and a tooltip stand beside each.
    constexpr double kFixed = 2.9;
    for (const int answered : {1, -1})
        EXPECT_GE(captionContrast(answered), kFixed) << answered;
    const int length = static_cast<int>(exercises::kBandTitle.size());
    for (int i = 1; i <= length; ++i)
        EXPECT_GE(contrastOf(exercises::titleInk(i, length), look::kBlue), kEnough) << i;
}

} // namespace
