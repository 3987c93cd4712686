#pragma once

#include "format.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace fuzz {

using Bytes = std::vector<std::byte>;

/// Numbers that are the same on every system (SplitMix64, Steele, Lea and Flood 2014).
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next();
    /// 0 to `limit` - 1; 0 for a limit of 0.
    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : next() % limit; }
    bool oneIn(std::size_t chances) { return below(chances) == 0; }

private:
    std::uint64_t state_;
};

/// Changes `bytes` in one to some dozen places: bits and bytes, numbers set to their bounds, words
/// of the format, stretches cut, doubled, moved, taken from `other`, the end cut off.
void mutate(Bytes& bytes, const Bytes& other, const Format& format, Random& random);

/// Inputs of a format, told by a seed and a number.
class Mutator {
public:
    /// Without seeds there is one, which is empty.
    Mutator(const Format& format, std::vector<Bytes> seeds);

    /// The first inputs are the seeds as they stand, so that what is amiss with those is told.
    Bytes input(std::uint64_t seed, std::uint64_t number) const;

private:
    const Format& format_;
    std::vector<Bytes> seeds_;
};

} // namespace fuzz
