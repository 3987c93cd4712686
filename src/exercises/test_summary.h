#pragma once

#include "exercises/test_state.h"

#include <optional>
#include <string>

namespace exercises {

/// A question answered wrong, as the summary at the end of a test has it.
struct WrongAnswer {
    int question = 0;
    int type = 0;            ///< of the record: 1 check boxes, 2 option buttons, 3 typed answer
    std::u16string asked;    ///< the question
    std::u16string siFaux;   ///< the comment on it
    std::u16string given;    ///< choice code or typed text, as it was validated
    std::u16string solution; ///< choice code or word; empty for NULL
};

} // namespace exercises
