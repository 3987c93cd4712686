#include "jet/value_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(ValueText, dates) {
    const struct {
        double days;
        const char* text;
    } rows[] = {{0, "1899-12-30T00:00:00"},
                {0.5, "1899-12-30T12:00:00"},
                {-1.75, "1899-12-29T18:00:00"}, // the time counts forward
                {36526.999999, "2000-01-02T00:00:00"},
                {42329.94480322917, "2015-11-21T22:40:31"},
                {-657434, "0100-01-01T00:00:00"},
                {2958465.75, "9999-12-31T18:00:00"}};
    for (const auto& row : rows)
        EXPECT_EQ(toText(jet::DateTime{row.days}), row.text) << row.days;
    for (const double days : {-657435.0, 2958466.0, 2958465.9999999, 1e300,
                              std::numeric_limits<double>::infinity(), std::nan("")})
        EXPECT_EQ(toText(jet::DateTime{days}), std::nullopt) << days;
}

TEST(ValueText, numbersWithAPoint) {
    EXPECT_EQ(toText(jet::Currency{0}), "0.0000");
    EXPECT_EQ(toText(jet::Currency{-5}), "-0.0005");
    EXPECT_EQ(toText(jet::Currency{std::numeric_limits<std::int64_t>::min()}),
              "-922337203685477.5808");
    EXPECT_EQ(toText(jet::Decimal{false, {0, 0, 0, 0}, 2}), "0.00");
    EXPECT_EQ(toText(jet::Decimal{true, {0, 0, 1, 0}, 0}), "-4294967296");
    EXPECT_EQ(toText(jet::Decimal{false, {0, 0, 0, 5}, 3}), "0.005");
    EXPECT_EQ(toText(jet::Decimal{false, {0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, 0}),
              "340282366920938463463374607431768211455");
    EXPECT_EQ(toText(jet::Decimal{false, {0, 0, 0, 1}, 255}).size(), 257u);
}

TEST(ValueText, bytes) {
    EXPECT_EQ(toText(jet::Guid{{0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66, 0x88, 0x99, 0xAA,
                                0xBB, 0xCC, 0xDD, 0xEE, 0xFF}}),
              "{00112233-4455-6677-8899-AABBCCDDEEFF}");
    EXPECT_EQ(jet::toHex({0x00, 0x0F, 0xA0}), "000fa0");
}

TEST(ValueNumbers, ofEachKind) {
    EXPECT_EQ(jet::Value(true).integer(), -1);
    EXPECT_EQ(jet::Value(std::uint8_t{200}).number(), 200);
    EXPECT_EQ(jet::Value(jet::Currency{-25000}).number(), -2.5);
    EXPECT_EQ(jet::Value(jet::Decimal{true, {0, 0, 0, 125}, 2}).number(), -1.25);
    EXPECT_EQ(jet::Value(1.5f).integer(), std::nullopt);
    EXPECT_EQ(jet::Value(u"1").number(), std::nullopt);
    EXPECT_EQ(jet::Value().number(), std::nullopt);
}
