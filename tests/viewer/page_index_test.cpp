#include "coursedata/page_index.h"
#include "shell/shared_state.h"
#include "viewer/course.h"

#include <gmock/gmock.h>

#include <numeric>

namespace {

using coursedata::FieldValue;
using test_support::MemoryRecordset;
using testing::ElementsAre;

MemoryRecordset numbered(const QList<FieldValue>& numbers) {
    QList<MemoryRecordset::Record> records;
    for (const FieldValue& number : numbers)
        records.append({{QStringLiteral("Numeropage"), number}, {QStringLiteral("Index"), 0.0}});
    return MemoryRecordset(records);
}

std::vector<std::int16_t> byNumber(const QList<FieldValue>& numbers) {
    shell::SharedState state;
    coursedata::buildPageIndex(numbered(numbers), state);
    return *state.PageByNumber;
}

TEST(PageIndex, holdsPositionsWithOneSlotMoreThanTheHighestNumber) {
    EXPECT_THAT(byNumber({3.0, 1.0}), ElementsAre(0, 1, 0, 0, 0));
}

TEST(PageIndex, theTableByReadingOrderEndsWithTheHighestIndex) {
    shell::SharedState state;
    coursedata::buildPageIndex(
        MemoryRecordset({{{QStringLiteral("Numeropage"), 1.0}, {QStringLiteral("Index"), 2.0}},
                         {{QStringLiteral("Numeropage"), 2.0}, {QStringLiteral("Index"), 3.0}}}),
        state);
    EXPECT_THAT(*state.PageByOrder, ElementsAre(0, 0, 0, 1));
    for (const auto& [number, code, print, order] :
         {std::tuple{-1, -1, -1, -1}, {1, 0, 0, 0}, {2, 1, 1, 0}, {3, -1, 0, 1}, {4, -1, -1, -1}}) {
        EXPECT_EQ(coursedata::positionOfCode(state, number).value_or(-1), code) << number;
        EXPECT_EQ(coursedata::positionInPrint(state, number).value_or(-1), print) << number;
        EXPECT_EQ(coursedata::positionByOrder(state, number).value_or(-1), order) << number;
    }
}

TEST(PageIndex, passesOverNumbersThatNoCodeCanReach) {
    EXPECT_THAT(byNumber({-1.0, FieldValue{}, 1.0, 4e9, coursedata::kMaxIndexedNumber + 1.0}),
                ElementsAre(0, 2, 0));
    EXPECT_THAT(byNumber({}), ElementsAre());
}

TEST(PageIndex, readsNumbersAsTheBoundControlsShowThem) {
    EXPECT_THAT(byNumber({QStringLiteral("2 pages"), 1.5, 0.5}), ElementsAre(2, 0, 1, 0));
}

TEST(PageIndex, lastOfEqualNumbersCounts) {
    EXPECT_THAT(byNumber({1.0, 1.0}), ElementsAre(0, 1, 0));
}

TEST(PageIndex, keepsPositionsWithin16Bits) {
    QList<FieldValue> numbers(40'000);
    std::iota(numbers.begin(), numbers.end(), 0.0);
    const auto table = byNumber(numbers);
    EXPECT_EQ(table[32767], 32767);
    EXPECT_EQ(table[32768], 0);
}

TEST(PageIndex, letsMessagesRunOverALargeTable) {
    shell::SharedState state;
    int looks = 0;
    coursedata::buildPageIndex(numbered(QList<FieldValue>(25'000, 1.0)), state, [&] { ++looks; });
    EXPECT_EQ(looks, 2);
}

} // namespace
