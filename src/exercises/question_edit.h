#pragma once

#include "exercises/question_writer.h"
#include "exercises/test_session.h"
#include "platform/message_box.h"

#include <QString>

#include <functional>
#include <optional>

namespace exercises {

/// What the authoring switch does: it takes the field "question" of the record shown, and nothing
/// that a wrong answer adds to it, and hands what the author makes of it to the writer.
class QuestionEdit {
public:
    /// `reopen` opens the tables again, so that the session sees what was written.
    QuestionEdit(const TestSession& session, QuestionWriter& writer, platform::Prompter& prompter,
                 std::function<void()> reopen)
        : session_(session), writer_(writer), prompter_(prompter), reopen_(std::move(reopen)) {}

    /// Starts over the record now shown; its source.
    QString begin();

    /// Writes `typed` to the record that begin() met; absent when the author has typed nothing.
    /// False when it could not be written: the author has been told, and it must stay in sight.
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

    const TestSession& session_;
    QuestionWriter& writer_;
    platform::Prompter& prompter_;
    std::function<void()> reopen_;
    std::optional<int> position_;
};

} // namespace exercises
