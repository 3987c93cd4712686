#pragma once

#include "markup/drawn_page.h"
#include "page/recording.h"

#include <QString>

namespace exercises {

/// What stands beside a control on its line, up to the next control: the words of a choice, or
/// what an answer box asks for.
struct BesideText {
    QString text;     ///< on one line; empty when nothing stands there
    double right = 0; ///< where it ends, in twips; the control's own right end when it is empty
};

/// The text right of a control of `fields`.
BesideText textRightOf(const page::FieldOperation& field, const markup::AnswerFields& fields,
                       const page::Recording& recording);

/// The text left of a control of `fields`.
BesideText textLeftOf(const page::FieldOperation& field, const markup::AnswerFields& fields,
                      const page::Recording& recording);

} // namespace exercises
