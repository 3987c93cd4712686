#include "text/bounded_array.h"

#include <gtest/gtest.h>

TEST(BoundedArray, onlyItsIndicesCanBeReached) {
    text::BoundedArray<int, 1, 5> table;
    EXPECT_TRUE(table.store(1, 10));
    EXPECT_TRUE(table.store(5, 50));
    EXPECT_FALSE(table.store(0, 1));
    EXPECT_FALSE(table.store(6, 1));
    EXPECT_EQ(table.valueOr(1, -1), 10);
    EXPECT_EQ(table.valueOr(5, -1), 50);
    EXPECT_EQ(table.valueOr(3, -1), 0);
    EXPECT_EQ(table.slot(0), nullptr);
    EXPECT_EQ(table.slot(6), nullptr);
}
