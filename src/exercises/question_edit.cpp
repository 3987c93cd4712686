#include "exercises/question_edit.h"

namespace exercises {

namespace {

platform::Message failure(const QString& reason, const char16_t* consequence,
                          platform::Message::Buttons buttons) {
    return {.title = QStringLiteral("Question non enregistrée"),
            .text = QStringLiteral("La question n’a pas été enregistrée\u00A0: ") + reason +
                    QStringLiteral(".\r\n\r\n") + QString::fromUtf16(consequence),
            .icon = platform::Message::Icon::Exclamation,
            .buttons = buttons};
}

/// A last line ends too: the comment on a wrong answer begins with a line of its own.
QString withLastLineEnded(const QString& source) {
    const bool ended = source.isEmpty() || source.endsWith(u'\n');
    return ended ? source : source + QStringLiteral("\r\n");
}

} // namespace

/// Why `typed` is not in the database; nothing when it is.
std::optional<QString> QuestionEdit::write(const std::optional<QString>& typed) {
    return typed ? record_.setQuestion(withLastLineEnded(*typed)) : std::nullopt;
}

bool QuestionEdit::commit(const std::optional<QString>& typed) {
    const auto reason = write(typed);
    if (reason)
        messageBoxes_.ask(
            failure(*reason, u"Votre texte reste affiché.", platform::Message::Buttons::Ok));
    return !reason;
}

QuestionEdit::Closing QuestionEdit::commitForClosing(const std::optional<QString>& typed) {
    const auto reason = write(typed);
    if (!reason)
        return Closing::Written;
    const auto message =
        failure(*reason, u"Fermer quand même\u00A0? Votre texte restera dans le presse-papiers.",
                platform::Message::Buttons::YesNo);
    return messageBoxes_.ask(message) == platform::Answer::Yes ? Closing::Abandoned
                                                               : Closing::Refused;
}

} // namespace exercises
