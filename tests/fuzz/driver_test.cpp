#include "driver.h"
#include "files/folder.h"
#include "seeds.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <sstream>
#include <thread>

using namespace std::chrono_literals;
using testing::HasSubstr;

namespace {

using fuzz::Bytes;

bool has(fuzz::Input input, std::byte byte) {
    return std::find(input.begin(), input.end(), byte) != input.end();
}

// What reads, with a fault in it.

void diesOfAByte(fuzz::Input input) {
    if (has(input, std::byte{0x7F}))
        std::abort();
}
void endsOnAByte(fuzz::Input input) {
    if (has(input, std::byte{0x7F}))
        std::_Exit(3);
}
void isNeverDone(fuzz::Input input) {
    for (volatile bool goesOn = has(input, std::byte{0x7F}); goesOn;) {
    }
}
void waitsForever(fuzz::Input input) {
    while (has(input, std::byte{0x7F}))
        std::this_thread::sleep_for(10ms);
}
void takesMemory(fuzz::Input input) {
    static std::vector<Bytes> taken;
    while (has(input, std::byte{0x7F})) {
        taken.emplace_back(std::size_t{8} << 20, std::byte{1});
        std::this_thread::sleep_for(4ms); // the machine has other things
    }
}
void isSound(fuzz::Input) {}

fuzz::Outcome read(void (*readOne)(fuzz::Input), std::uint64_t count, const Folder& folder,
                   std::string& told, const fuzz::Bounds& bounds = {}) {
    const fuzz::Format format{"planted", readOne, {}, {"\x7F"}};
    const fuzz::Mutator mutator(format, {Bytes(40)});
    fuzz::Job job{
        .format = format, .mutator = mutator, .seed = 5, .count = count, .failures = folder.path()};
    job.bounds = bounds;
    std::ostringstream out;
    fuzz::Outcome outcome = fuzz::drive(job, out);
    told = out.str();
    return outcome;
}

/// The first numbers of inputs with the byte, as the mutator gives them.
std::vector<std::uint64_t> numbersWithTheByte(std::uint64_t count) {
    const fuzz::Format format{"planted", isSound, {}, {"\x7F"}};
    const fuzz::Mutator mutator(format, {Bytes(40)});
    std::vector<std::uint64_t> numbers;
    for (std::uint64_t number = 0; number < count; ++number)
        if (has(mutator.input(5, number), std::byte{0x7F}))
            numbers.push_back(number);
    return numbers;
}

struct Planted {
    const char* name;
    void (*readOne)(fuzz::Input);
    const char* how;
    fuzz::Bounds bounds = {};
};

class PlantedFault : public testing::TestWithParam<Planted> {};

TEST_P(PlantedFault, isFoundWithItsNumberAndItsInput) {
    // As far as the second input that fails: what comes behind a failure is read too.
    const auto numbers = numbersWithTheByte(1000);
    ASSERT_GE(numbers.size(), 2u);
    const Folder folder;
    std::string told;
    const auto outcome = read(GetParam().readOne, numbers[1] + 1, folder, told, GetParam().bounds);
    EXPECT_EQ(outcome.read, numbers[1] + 1);
    ASSERT_EQ(outcome.failed.size(), 2u) << told;
    for (std::size_t i = 0; i < 2; ++i) {
        const fuzz::FailedInput& failed = outcome.failed[i];
        EXPECT_EQ(failed.number, numbers[i]);
        EXPECT_THAT(failed.how, HasSubstr(GetParam().how));
        EXPECT_TRUE(has(fuzz::readBytes(failed.file), std::byte{0x7F})) << failed.file;
        EXPECT_THAT(told, HasSubstr("seed 5, number " + std::to_string(numbers[i])));
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, PlantedFault,
                         testing::Values(Planted{"Abort", diesOfAByte, "signal 6"},
                                         Planted{"Exit", endsOnAByte, "exit 3"},
                                         Planted{"Loop", isNeverDone, "no end", {.work = 300ms}},
                                         Planted{"Sleep", waitsForever, "no end", {.wait = 1s}},
                                         Planted{"Memory",
                                                 takesMemory,
                                                 "too much memory",
                                                 {.memoryBytes = std::size_t{300} << 20}}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(Driver, readsEveryInputOfWhatIsSound) {
    const Folder folder;
    std::string told;
    const auto outcome = read(isSound, 5000, folder, told);
    EXPECT_EQ(outcome.read, 5000u);
    EXPECT_TRUE(outcome.failed.empty()) << told;
    EXPECT_GT(outcome.peakBytes, 0u);
}

TEST(Driver, endsWhenOneFaultIsFoundAgainAndAgain) {
    const Folder folder;
    std::string told;
    const auto outcome = read([](fuzz::Input) { std::_Exit(1); }, 1000, folder, told);
    EXPECT_EQ(outcome.failed.size(), fuzz::kMostFailures);
}

} // namespace
