#include "coursetool/question_folders.h"

#include <algorithm>

namespace coursetool {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

/// Positions of a longest subsequence of the folders that are there and never decrease.
std::vector<std::size_t> longestInOrder(std::span<const std::optional<std::size_t>> own) {
    std::vector<std::size_t> tails; // by length: the position that ends the best run of it
    std::vector<std::size_t> previous(own.size(), kNone);
    for (std::size_t i = 0; i < own.size(); ++i) {
        if (!own[i])
            continue;
        const auto place =
            std::upper_bound(tails.begin(), tails.end(), *own[i],
                             [&](std::size_t folder, std::size_t at) { return folder < *own[at]; });
        if (place != tails.begin())
            previous[i] = *(place - 1);
        if (place == tails.end())
            tails.push_back(i);
        else
            *place = i;
    }
    std::vector<std::size_t> kept;
    for (std::size_t i = tails.empty() ? kNone : tails.back(); i != kNone; i = previous[i])
        kept.push_back(i);
    std::reverse(kept.begin(), kept.end());
    return kept;
}

} // namespace

std::vector<std::size_t> shareOut(std::span<const std::optional<std::size_t>> own) {
    const std::vector<std::size_t> kept = longestInOrder(own);
    std::vector<std::size_t> folders(own.size(), 0);
    std::size_t folder = kept.empty() ? 0 : *own[kept.front()];
    auto next = kept.begin();
    for (std::size_t i = 0; i < own.size(); ++i) {
        if (next != kept.end() && *next == i)
            folder = *own[*next++];
        folders[i] = folder;
    }
    return folders;
}

} // namespace coursetool
