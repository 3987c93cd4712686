#pragma once

#include "coursedata/exercise_tables.h"
#include "platform/message_box.h"

#include <QString>

#include <optional>

namespace exercises {

/// Puts what an author has typed over a question into the field "question" of the record shown:
/// that and nothing else, so never what a wrong answer adds to it.
class QuestionEdit {
public:
    QuestionEdit(coursedata::QuestionRecord& record, platform::MessageBoxes& messageBoxes)
        : record_(record), messageBoxes_(messageBoxes) {}

    /// Writes `typed`, its last line ended; absent when the author has typed nothing. False when it
    /// could not be written: the author has been told, and it must stay in sight.
    bool commit(const std::optional<QString>& typed);

    enum class Closing {
        Written,   ///< or there was nothing to write
        Refused,   ///< it could not be written, and the author goes on with it
        Abandoned, ///< it could not be written, and the author closes all the same
    };
    /// The same when the window is to close.
    Closing commitForClosing(const std::optional<QString>& typed);

private:
    std::optional<QString> write(const std::optional<QString>& typed);

    coursedata::QuestionRecord& record_;
    platform::MessageBoxes& messageBoxes_;
};

} // namespace exercises
