#include "search/word_finder.h"

#include "search/byte_vectors.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

namespace search {

WordFinder::WordFinder(std::string word, std::string_view sample) : word_(std::move(word)) {
    std::array<std::size_t, 256> counts{};
    for (const char c : sample)
        ++counts[static_cast<std::uint8_t>(c)];
    const auto count = [&](std::size_t at) { return counts[static_cast<std::uint8_t>(word_[at])]; };
    const auto rarer = [&](std::size_t a, std::size_t b) { return count(a) < count(b); };
    for (std::size_t i = 1; i < word_.size(); ++i)
        if (rarer(i, rarest_))
            rarest_ = i;
    partner_ = rarest_ == 0 ? word_.size() - 1 : 0;
    for (std::size_t i = 0; i < word_.size(); ++i)
        if (i != rarest_ && rarer(i, partner_))
            partner_ = i;
}

std::size_t WordFinder::find(std::string_view text, std::size_t from) const {
    const char rarest = word_[rarest_];
    const char partner = word_[partner_];
    std::size_t at = from;
    // While the word fits at each of the places that are looked at together.
    while (at + kPairsAtOnce + word_.size() <= text.size() + 1) {
        const char* const places = text.data() + at;
        for (std::uint64_t pairs = bytePairs(places + rarest_, rarest, places + partner_, partner);
             pairs != 0; pairs &= pairs - 1) {
            const std::size_t place = at + static_cast<std::size_t>(std::countr_zero(pairs));
            if (text.compare(place, word_.size(), word_) == 0)
                return place;
        }
        at += kPairsAtOnce;
    }
    return at < text.size() ? text.find(word_, at) : npos;
}

} // namespace search
