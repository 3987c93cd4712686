#pragma once

#include "calculator/expression.h"
#include "calculator/result_text.h"

namespace calculator {

/// What is said in the end, to whoever asks: the line of a result, or a message.
struct Answer {
    Text line;
    bool isMessage = false;
    /// Of the evaluation. None stands beside a message too: an evaluation that went well may come
    /// to a number beyond a double's range.
    ErrorCode error = ErrorCode::None;
};

/// Evaluates and puts the result into words.
Answer answerTo(TextView expression, AngleMode angles, Format format, Hooks hooks = {});

/// The number that `result` starts with, as a line or as the message that it is too large.
Answer answerWith(TextView result, Format format);

/// The message for `error`, which must be one.
Answer answerWith(ErrorCode error);

/// The number of the error that an answer stands for, as programs are told it: no result that could
/// be shown is impossible. 0 for a result.
int statusOf(const Answer& answer);

} // namespace calculator
