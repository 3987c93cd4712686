#include "exercises/progress_strip.h"

#include <gtest/gtest.h>

namespace exercises {
namespace {

TEST(ProgressStrip, sharesItsHeightOut) {
    const struct {
        int question, count;
        double height;
        std::optional<Band> band;
    } rows[] = {
        {1, 4, 520, Band{0, 128}},       {4, 4, 520, Band{390, 518}},
        {1, 1, 300, Band{0, 298}},       {2, 3, 100, Band{33, 65}}, // 33.3 to 64.7
        {2, 8, 100, Band{12, 23}}, // 12.5 goes to the even neighbour
        {100, 100, 520, Band{515, 518}}, {1, 1000, 520, std::nullopt}, // no room
        {1, 0, 520, std::nullopt},       {1, -3, 520, std::nullopt},
    };
    for (const auto& row : rows)
        EXPECT_EQ(bandOf(row.question, row.count, row.height), row.band)
            << row.question << " of " << row.count;
    EXPECT_EQ(bandCaption(7), u"Question 7");
}

TEST(ProgressStrip, aClickChoosesItsBand) {
    const struct {
        double y;
        int count;
        std::optional<std::int16_t> question;
    } rows[] = {{0, 4, 1},   {129, 4, 1},  {130, 4, 2}, // on a border: the even one
                {260, 4, 2}, {261, 4, 3},  {390, 4, 4},  {519, 4, 4},  {520, 4, 4},
                {-50, 4, 1}, {9999, 4, 4}, {1e9, 4, {}}, {100, 0, {}}, {100, -3, {}}};
    for (const auto& row : rows)
        EXPECT_EQ(questionAt(row.y, row.count, 520), row.question) << row.y;
    EXPECT_EQ(questionAt(0, 4, 0), std::nullopt);
}

TEST(ProgressStrip, theMarkerIsInTheMiddleOfItsBand) {
    EXPECT_EQ(markerTop(1, 1, 520, 36), 242);
    EXPECT_EQ(markerTop(3, 4, 520, 36), 307);
    EXPECT_EQ(markerTop(1, 0, 520, 36), std::nullopt);
}

} // namespace
} // namespace exercises
