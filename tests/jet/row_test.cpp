#include "jet/row.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <vector>

namespace {

using Stored = std::vector<std::uint8_t>;

constexpr jet::RowShape kNarrow{&jet::kJet3, 10, true};
constexpr jet::RowShape kWide{&jet::kJet4, 4, true};

std::string textOf(const std::optional<jet::Bytes>& value) {
    return value ? std::string(value->data(), value->data() + value->size()) : "out of bounds";
}

/// A Jet 3 row of text values of those lengths, with the jump bytes its length asks for.
Stored narrowRow(const std::vector<std::size_t>& lengths) {
    const std::size_t count = lengths.size();
    Stored row{static_cast<std::uint8_t>(count)};
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i < count; ++i) {
        offsets.push_back(row.size());
        row.insert(row.end(), lengths[i], static_cast<std::uint8_t>('a' + i));
    }
    offsets.push_back(row.size());
    const std::size_t maskBytes = (count + 7) / 8;
    const auto jumpsOf = [&](std::size_t length) { return (length - 1) / 256; };
    std::size_t jumps = 0;
    const std::size_t others = row.size() + count + 1 + 1 + maskBytes;
    while (jumpsOf(others + jumps) != jumps)
        ++jumps;
    for (std::size_t i = count + 1; i-- > 0;)
        row.push_back(static_cast<std::uint8_t>(offsets[i]));
    // The first value whose offset lies past each multiple of 256; 0xFF a jump that none takes must
    // be passed over whatever it says.
    for (std::size_t jump = jumps; jump > 0; --jump) {
        std::size_t from = 0;
        while (from <= count && offsets[from] < 256 * jump)
            ++from;
        row.push_back(from <= count ? static_cast<std::uint8_t>(from) : 0);
    }
    row.push_back(static_cast<std::uint8_t>(count));
    row.insert(row.end(), maskBytes, 0xFF);
    return row;
}

TEST(Row, jumpBytesReachBeyond256) {
    const std::vector<std::vector<std::size_t>> rows{
        {1, 2, 3},           {250, 5, 5},  {255, 0, 1}, {100, 100, 100, 100, 100, 100, 100, 100},
        {0, 600, 0, 600, 0}, {200, 40, 5}, {249, 2},    {100, 100, 48},
        {900, 900}};
    for (const auto& lengths : rows) {
        const Stored bytes = narrowRow(lengths);
        const auto parsed = jet::Row::parse(bytes, kNarrow);
        ASSERT_TRUE(parsed.row) << parsed.fault;
        for (std::size_t i = 0; i < lengths.size(); ++i)
            EXPECT_EQ(textOf(parsed.row->variableValue(i)),
                      std::string(lengths[i], static_cast<char>('a' + i)))
                << bytes.size() << " bytes, value " << i;
    }
}

/// A row of MSysACEs: ObjectId 2, ACM 0x60000, FInheritable false, SID 64 8B.
const Stored kRights{4, 0, 2, 0, 0, 0, 0, 0, 6, 0, 0x64, 0x8B, 0x0C, 0, 10, 0, 1, 0, 7};

TEST(Row, givesItsValues) {
    const auto parsed = jet::Row::parse(kRights, kWide);
    ASSERT_TRUE(parsed.row) << parsed.fault;
    EXPECT_EQ(parsed.row->fixedValue(4, 4)->u32(0), 0x60000u);
    EXPECT_EQ(textOf(parsed.row->variableValue(0)), "\x64\x8B");
    EXPECT_EQ(textOf(parsed.row->variableValue(1)), "") << "of a column younger than the row";
    EXPECT_TRUE(parsed.row->isSet(2));
    EXPECT_FALSE(parsed.row->isSet(3));
    EXPECT_FALSE(parsed.row->isSet(4)) << "of a column younger than the row";
    EXPECT_FALSE(parsed.row->fixedValue(6, 4)) << "reaches into the variable values";
    EXPECT_FALSE(parsed.row->fixedValue(0xFFFFFFFFFFFFFFF0u, 0x20)) << "the sum wraps";
}

/// Every row of every length with any one byte changed is refused or gives values inside itself.
TEST(Row, staysWithinItsBytes) {
    const Stored narrow = narrowRow({100, 100, 100});
    for (const auto& [sound, shape] : {std::pair(kRights, kWide), std::pair(narrow, kNarrow)}) {
        const auto expectInside = [&](const Stored& bytes) {
            const auto parsed = jet::Row::parse(bytes, shape);
            ASSERT_NE(parsed.row.has_value(), parsed.fault != nullptr);
            for (std::size_t i = 0; parsed.row && i < 300; ++i)
                if (const auto value = parsed.row->variableValue(i); value && !value->empty()) {
                    EXPECT_GE(value->data(), bytes.data());
                    EXPECT_LE(value->data() + value->size(), bytes.data() + bytes.size());
                }
        };
        for (std::size_t length = 0; length <= sound.size(); ++length)
            expectInside(Stored(sound.end() - static_cast<std::ptrdiff_t>(length), sound.end()));
        for (std::size_t at = 0; at < sound.size(); ++at)
            for (const int value : {0, 1, 2, 127, 128, 254, 255}) {
                Stored changed = sound;
                changed[at] = static_cast<std::uint8_t>(value);
                expectInside(changed);
            }
    }
}

} // namespace
