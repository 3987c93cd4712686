#include "text/rounding.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Rounding, halvesGoToTheEvenNeighbour) {
    const struct {
        double value, expected;
    } rows[] = {{.5, 0},    {1.5, 2}, {2.5, 2}, {-.5, 0},   {-1.5, -2},
                {-2.5, -2}, {2.4, 2}, {2.6, 3}, {-2.6, -3}, {1e15 + .5, 1e15}};
    for (const auto& row : rows)
        EXPECT_EQ(text::roundHalfEven(row.value), row.expected) << row.value;
}

TEST(Rounding, sixteenBitValuesEndWhereTheyShould) {
    EXPECT_EQ(text::toInt16(32767.4), 32767);
    EXPECT_EQ(text::toInt16(-32768.5), -32768);
    EXPECT_EQ(text::toInt16(32767.5), std::nullopt);
    EXPECT_EQ(text::toInt16(-32769), std::nullopt);
    EXPECT_EQ(text::toInt16(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(text::toInt32(2147483647.), 2147483647);
    EXPECT_EQ(text::toInt32(std::numeric_limits<double>::infinity()), std::nullopt);
}
