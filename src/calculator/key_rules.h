#pragma once

#include "calculator/answer.h"
#include "calculator/keypad.h"

namespace calculator {

/// The memory register. It belongs to the whole program and outlives the window.
struct Memory {
    double memoire = 0;
};

/// What the key rules need of a window.
class CalculatorView {
public:
    virtual ~CalculatorView() = default;

    /// The display's text has become `text`.
    virtual void showText(TextView text) = 0;
    virtual void beep() = 0;
    /// Called again and again during an evaluation, between any two of its reductions: the chance
    /// to let pending input through.
    virtual void breathe() = 0;
};

/// The calculator without its window: the expression that is being typed and what each key does
/// to it.
class KeyRules {
public:
    /// `decimalPoint` is that of the user's language; only the scientific recall of the memory
    /// shows it.
    KeyRules(Memory& memory, CalculatorView& view, char16_t decimalPoint);

    /// Empties the entry, as each loading of the window does.
    void load() { saisie_.clear(); }

    /// During an evaluation no key has any effect.
    void press(const Key& key);
    /// Presses the key that a typed character stands for; false when there is none.
    bool type(char16_t character);

    void setAngles(AngleMode angles) { angles_ = angles; }
    /// Right after a result the display shows it again in the new format.
    void setFormat(Format format);

    /// Empties the display, upon which an evaluation under way ends as impossible. Nothing when
    /// there is none.
    void cancel();

    bool evaluating() const { return evaluating_; }
    const Text& saisie() const { return saisie_; }
    const Text& display() const { return display_; }

private:
    void show(Text text);
    void append(TextView text);
    void appendFactor(TextView text);
    void appendOperator(const Key& key);
    void answerFirst();
    void lastAnswer();
    void minus();
    void eraseBack();
    void addToMemory(double sign);
    void recallMemory();
    void evaluate();
    Answer answer();
    void say(const Answer& answer);

    Memory& memory_;
    CalculatorView& view_;
    const char16_t decimalPoint_;

    Text saisie_;   ///< the expression being typed
    Text reponse_;  ///< what the last "=" showed, result or message
    Text derniere_; ///< the expression at the last "="
    ErrorCode erreur_ = ErrorCode::None;

    Text display_;
    AngleMode angles_ = AngleMode::Radians;
    Format format_ = Format::Standard;
    bool evaluating_ = false;
};

} // namespace calculator
