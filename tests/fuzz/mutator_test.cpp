#include "mutator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using fuzz::Bytes;

Bytes bytesOf(std::string_view text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

fuzz::Format wordy() {
    fuzz::Format format{"wordy", [](fuzz::Input) {}, {}, {"WORD"}};
    format.mostBytes = 300;
    return format;
}

std::vector<Bytes> inputs(const fuzz::Mutator& mutator, std::uint64_t seed) {
    std::vector<Bytes> all;
    for (std::uint64_t number = 0; number < 600; ++number)
        all.push_back(mutator.input(seed, number));
    return all;
}

TEST(Mutator, givesTheSameInputsForTheSameSeed) {
    const fuzz::Format format = wordy();
    const fuzz::Mutator mutator(format, {Bytes(100), bytesOf("other")});
    const auto once = inputs(mutator, 7);
    EXPECT_EQ(inputs(fuzz::Mutator(format, {Bytes(100), bytesOf("other")}), 7), once);
    EXPECT_NE(inputs(mutator, 8), once);
    EXPECT_GT(std::set(once.begin(), once.end()).size(), 400u) << "they are inputs of many kinds";
}

TEST(Mutator, beginsWithTheSeedsAndTakesFromThem) {
    const fuzz::Format format = wordy();
    const fuzz::Mutator mutator(format, {Bytes(100), bytesOf("other")});
    const auto all = inputs(mutator, 1);
    EXPECT_EQ(all[0], Bytes(100));
    EXPECT_EQ(all[1], bytesOf("other"));
    const auto holding = [&](std::string_view text) {
        const Bytes part = bytesOf(text);
        return std::count_if(all.begin() + 2, all.end(), [&](const Bytes& input) {
            return std::search(input.begin(), input.end(), part.begin(), part.end()) != input.end();
        });
    };
    EXPECT_GT(holding("WORD"), 10);
    EXPECT_GT(holding("ther"), 8);
    for (const Bytes& input : all)
        EXPECT_LE(input.size(), format.mostBytes);
}

/// Where structures have their places, nearly all that follows a change keeps its own.
TEST(Mutator, leavesPagesInTheirPlaces) {
    fuzz::Format format = wordy();
    format.pageBytes = 512;
    Bytes pages(16 * 512);
    for (std::size_t i = 0; i < pages.size(); ++i)
        pages[i] = static_cast<std::byte>(i / 512);
    const fuzz::Mutator mutator(format, {pages});
    int inPlace = 0;
    for (std::uint64_t number = 1; number <= 200; ++number) {
        const Bytes input = mutator.input(3, number);
        std::size_t same = 0;
        for (std::size_t i = 0; i < std::min(input.size(), pages.size()); ++i)
            same += input[i] == pages[i] ? 1 : 0;
        inPlace += 4 * same > 3 * pages.size() ? 1 : 0;
    }
    EXPECT_GT(inPlace, 100);
}

} // namespace
