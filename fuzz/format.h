#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace fuzz {

using Input = std::span<const std::byte>;

/// Where sound inputs of a format lie: all files of that ending in a folder and below it.
struct SeedPlace {
    const char* folder; ///< below the sources
    const char* ending; ///< with its point; empty for every file
};

/// Something that the program reads and somebody else may have written. Each stands in a file of
/// its own in formats/ and is read by whoever makes inputs up: the driver (driver.h), which changes
/// seeds by a number that gives the same inputs again, and libFuzzer.
struct Format {
    const char* name;
    /// Takes the input through all that reads it. Comes back, whatever the bytes are, or ends the
    /// process: by a sanitizer, or by require(). Files go to scratchFolder().
    void (*readOne)(Input input);
    std::vector<SeedPlace> seeds;
    /// What inputs are made of: put into them now and then.
    std::vector<std::string_view> words;
    /// Longer inputs say nothing that shorter ones do not; seeds are never cut.
    std::size_t mostBytes = 64 * 1024;
    /// Where structures begin anew, so that changes meet them; 0 when nowhere in particular.
    std::size_t pageBytes = 0;
    /// Makes seeds that are better not kept as files; they stand behind the others.
    std::vector<std::vector<std::byte>> (*makeSeeds)() = nullptr;
};

/// All of them, those first that can hurt most.
std::span<const Format* const> formats();
/// Null when there is none of that name.
const Format* findFormat(std::string_view name);

/// Ends the process, with the words on standard error, when something does not hold.
void require(bool holds, const char* words);

/// Text as it stands in an input, byte by byte.
inline std::string_view textOf(Input input) {
    return {reinterpret_cast<const char*>(input.data()), input.size()};
}

} // namespace fuzz
