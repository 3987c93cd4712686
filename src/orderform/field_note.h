#pragma once

#include "look/icon.h"

#include <QWidget>

namespace orderform {

/// Words about a field or the form: a quiet hint, what is wrong, with a square cross, or what has
/// been done, with a round check mark.
class FieldNote : public QWidget {
public:
    enum class Kind { Hint, Fault, Done };

    explicit FieldNote(QWidget* parent);

    void say(Kind kind, const QString& words);
    const QString& words() const { return words_; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Kind kind_ = Kind::Hint;
    QString words_;
    look::Icon sign_;
};

} // namespace orderform
