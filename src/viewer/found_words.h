#pragma once

#include <QString>

#include <vector>

namespace viewer {

/// The words that a search looks for, each as a part of longer words too and without regard to
/// letter case. No words mean that nothing is looked for.
struct FoundWords {
    std::vector<QString> words;
    bool ignoreAccents = false; ///< otherwise accented letters match themselves only

    bool operator==(const FoundWords&) const = default;
};

} // namespace viewer
