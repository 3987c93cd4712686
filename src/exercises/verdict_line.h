#pragma once

#include "exercises/test_view.h"
#include "look/icon.h"

#include <QWidget>

#include <optional>

namespace exercises {

/// What an answer was worth, in words behind a mark, on the line of the question's number. What
/// does not fit is cut short; the tooltip and screen readers have it whole.
class VerdictLine : public QWidget {
public:
    explicit VerdictLine(QWidget* parent);

    /// Hidden until there is a verdict.
    void setVerdict(const std::optional<Verdict>& verdict);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<look::Icon> mark_;
    QString words_;
    bool right_ = false;
};

} // namespace exercises
