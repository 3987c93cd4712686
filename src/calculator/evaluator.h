#pragma once

#include "calculator/expression.h"

namespace calculator {

/// What an evaluation came to.
struct Evaluation {
    /// Without an error the result, trimmed: one number, or what stood alone in the text. With an
    /// error the state in which it was found.
    Text text;
    ErrorCode error = ErrorCode::None;
};

/// Rewrites expressions into numbers: functions, groups and operators in turn, until nothing is
/// left to do. Gives the same whatever the locale. Keeps nothing between evaluations.
class Evaluator {
public:
    explicit Evaluator(Hooks hooks = {}) : hooks_(std::move(hooks)) {}

    Evaluation evaluer(TextView expression, AngleMode angles) const;

private:
    Hooks hooks_;
};

} // namespace calculator
