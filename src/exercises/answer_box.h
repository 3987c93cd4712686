#pragma once

#include "exercises/choices.h"
#include "look/icon.h"
#include "look/text_field.h"

#include <optional>

namespace exercises {

/// `Text1`: the box for a typed answer. Once the answer has been judged, the box has its mark at
/// its right end.
class AnswerBox : public look::TextField {
public:
    explicit AnswerBox(QWidget* parent);

    /// Shows what the answer was worth; nothing takes the mark away.
    void setMark(std::optional<Mark> mark);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<look::Icon> mark_;
};

} // namespace exercises
