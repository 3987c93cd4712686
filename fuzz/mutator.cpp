#include "mutator.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace fuzz {

namespace {

/// Longest stretch that is copied, moved or cut at once.
constexpr std::size_t kLongestStretch = 4096;
/// Of a page, where its structure stands.
constexpr std::size_t kPageHead = 96;

using Difference = Bytes::difference_type;

Bytes::iterator iteratorAt(Bytes& bytes, std::size_t at) {
    return bytes.begin() + static_cast<Difference>(at);
}

/// A place in `bytes`; where there are pages, mostly at one of their ends.
std::size_t placeIn(const Bytes& bytes, const Format& format, Random& random) {
    if (format.pageBytes == 0 || bytes.size() < format.pageBytes || random.oneIn(4))
        return random.below(bytes.size());
    const std::size_t page = format.pageBytes * random.below(bytes.size() / format.pageBytes);
    const std::size_t within = random.below(kPageHead);
    return random.oneIn(3) ? page + format.pageBytes - 1 - within : page + within;
}

/// Mostly short.
std::size_t lengthWithin(std::size_t room, Random& random) {
    const std::size_t most = std::min(room, kLongestStretch >> random.below(12));
    return most == 0 ? 0 : 1 + random.below(most);
}

/// A stretch of `bytes`, be it a whole page, as first place and length; of length 0 only where
/// there is nothing.
std::pair<std::size_t, std::size_t> stretchOf(const Bytes& bytes, const Format& format,
                                              Random& random) {
    const std::size_t at = placeIn(bytes, format, random);
    if (format.pageBytes != 0 && random.oneIn(4)) {
        const std::size_t page = at / format.pageBytes * format.pageBytes;
        return {page, std::min(format.pageBytes, bytes.size() - page)};
    }
    return {at, lengthWithin(bytes.size() - std::min(at, bytes.size()), random)};
}

Bytes partOf(const Bytes& bytes, std::pair<std::size_t, std::size_t> stretch) {
    const auto first = bytes.begin() + static_cast<Difference>(stretch.first);
    return Bytes(first, first + static_cast<Difference>(stretch.second));
}

void overwrite(Bytes& bytes, std::size_t at, const Bytes& with) {
    std::copy_n(with.begin(), std::min(with.size(), bytes.size() - at), iteratorAt(bytes, at));
}

/// Where structures have their places, what is put in front of them mostly takes the place of
/// something: all that follows would have lost its own.
void insert(Bytes& bytes, std::size_t at, const Bytes& what, const Format& format, Random& random) {
    if (format.pageBytes != 0 && !random.oneIn(32))
        return overwrite(bytes, at, what);
    bytes.insert(iteratorAt(bytes, at), what.begin(), what.end());
}

void cut(Bytes& bytes, std::pair<std::size_t, std::size_t> stretch, const Format& format,
         Random& random) {
    const auto [first, length] = stretch;
    if (format.pageBytes != 0 && !random.oneIn(32))
        return overwrite(bytes, first, Bytes(length));
    bytes.erase(iteratorAt(bytes, first), iteratorAt(bytes, first + length));
}

/// Sets a number of 1, 2, 4 or 8 bytes, low or high byte first, to where reckoning goes wrong.
void setNumber(Bytes& bytes, const Format& format, Random& random) {
    const std::size_t width = std::size_t{1} << random.below(4);
    const std::array<std::uint64_t, 12> bounds{0,
                                               1,
                                               0x7F,
                                               0x80,
                                               0xFF,
                                               0x7FFF,
                                               0x8000,
                                               0x7FFFFFFF,
                                               0x80000000,
                                               ~std::uint64_t{0},
                                               bytes.size(),
                                               random.below(0x10000)};
    const std::uint64_t number = bounds[random.below(bounds.size())];
    Bytes written;
    for (std::size_t i = 0; i < width; ++i)
        written.push_back(static_cast<std::byte>(number >> (8 * i)));
    if (random.oneIn(3))
        std::reverse(written.begin(), written.end());
    overwrite(bytes, placeIn(bytes, format, random), written);
}

Bytes wordOf(const Format& format, Random& random) {
    Bytes word;
    if (!format.words.empty())
        for (const char c : format.words[random.below(format.words.size())])
            word.push_back(static_cast<std::byte>(c));
    return word;
}

void mutateOnce(Bytes& bytes, const Bytes& other, const Format& format, Random& random) {
    if (bytes.empty())
        bytes.push_back(static_cast<std::byte>(random.below(256)));
    const std::size_t at = placeIn(bytes, format, random);
    switch (random.below(12)) {
    case 0:
        bytes[at] ^= static_cast<std::byte>(1u << random.below(8));
        break;
    case 1:
        bytes[at] = static_cast<std::byte>(random.below(256));
        break;
    case 2:
    case 3:
        setNumber(bytes, format, random);
        break;
    case 4:
        overwrite(bytes, at, wordOf(format, random));
        break;
    case 5:
        insert(bytes, at, wordOf(format, random), format, random);
        break;
    case 6:
        overwrite(bytes, at, partOf(bytes, stretchOf(bytes, format, random)));
        break;
    case 7:
        insert(bytes, at, partOf(bytes, stretchOf(bytes, format, random)), format, random);
        break;
    case 8:
        overwrite(bytes, at, partOf(other, stretchOf(other, format, random)));
        break;
    case 9:
        insert(bytes, at, partOf(other, stretchOf(other, format, random)), format, random);
        break;
    case 10:
        cut(bytes, stretchOf(bytes, format, random), format, random);
        break;
    default:
        // An end cut off leaves little to look at: seldom.
        if (random.oneIn(4))
            bytes.resize(at);
    }
}

} // namespace

std::uint64_t Random::next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
    return z ^ (z >> 31);
}

void mutate(Bytes& bytes, const Bytes& other, const Format& format, Random& random) {
    const std::size_t most = std::max(bytes.size(), format.mostBytes);
    for (std::size_t left = 1 + random.below(std::size_t{1} << random.below(6)); left > 0; --left)
        mutateOnce(bytes, other, format, random);
    bytes.resize(std::min(bytes.size(), most));
}

Mutator::Mutator(const Format& format, std::vector<Bytes> seeds)
    : format_(format), seeds_(std::move(seeds)) {
    if (seeds_.empty())
        seeds_.emplace_back();
}

Bytes Mutator::input(std::uint64_t seed, std::uint64_t number) const {
    if (number < seeds_.size())
        return seeds_[number];
    // Two draws apart, so that neighbouring seeds do not share inputs.
    Random random(Random(seed).next() + Random(number).next());
    Bytes bytes = seeds_[random.below(seeds_.size())];
    mutate(bytes, seeds_[random.below(seeds_.size())], format_, random);
    return bytes;
}

} // namespace fuzz
