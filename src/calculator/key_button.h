#pragma once

#include "calculator/key_layout.h"
#include "calculator/keypad.h"
#include "look/button.h"

namespace calculator {

/// A key of the keypad. In its caption what follows "^" is set small and raised, and a lone "x"
/// before it in italics; the key without a caption shows the drawing of a backspace key.
class KeyButton : public look::Button {
public:
    KeyButton(const Key& key, const KeyPlace& place, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Colours;

    Colours colours() const;
    double baseline() const;
    void paintRaised(QPainter& painter, const QString& base, const QString& raised) const;

    KeyStyle style_;
    look::Icon icon_;
};

} // namespace calculator
