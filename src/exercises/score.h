#pragma once

#include "exercises/test_state.h"
#include "exercises/test_view.h"

#include <optional>

namespace exercises {

/// Faces of the marker, from the saddest to the happiest.
inline constexpr int kSaddestFace = 1;
inline constexpr int kHappiestFace = 7;

/// The face for the share of right answers; nothing before the first answer.
std::optional<int> smileLevel(const Counts& counts);

/// Right answers in a hundred given (not in a hundred asked, which is meant so), halves to the even
/// neighbour: 1 of 8 gives 12. Nothing before the first answer.
std::optional<int> percentage(const Counts& counts);

/// What the score label tells, in a test of `questionCount` questions.
Message scoreMessage(const Counts& counts, int questionCount);

} // namespace exercises
