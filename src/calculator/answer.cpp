#include "calculator/answer.h"

#include "calculator/evaluator.h"

#include <utility>

namespace calculator {

namespace {

TextView message(ErrorCode error) {
    switch (error) {
    case ErrorCode::None:
        break;
    case ErrorCode::Impossible:
        return u"Calcul impossible";
    case ErrorCode::Parentheses:
        return u"Erreur saisie: revoir les parenthèses";
    case ErrorCode::Operators:
        return u"Erreur saisie: incompréhension sur opérateurs: ^ * / + -";
    }
    return {};
}

} // namespace

Answer answerTo(TextView expression, AngleMode angles, Format format, Hooks hooks) {
    const Evaluation found = Evaluator(std::move(hooks)).evaluer(expression, angles);
    if (found.error != ErrorCode::None)
        return answerWith(found.error);
    return answerWith(found.text, format);
}

Answer answerWith(TextView result, Format format) {
    if (auto line = resultLine(result, format))
        return {*std::move(line)};
    return {u"Dépassement de capacité", true};
}

Answer answerWith(ErrorCode error) {
    return {Text(message(error)), true, error};
}

int statusOf(const Answer& answer) {
    const bool tooLarge = answer.isMessage && answer.error == ErrorCode::None;
    return static_cast<int>(tooLarge ? ErrorCode::Impossible : answer.error);
}

} // namespace calculator
