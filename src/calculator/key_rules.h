#pragma once

#include "calculator/evaluator.h"
#include "calculator/keypad.h"
#include "calculator/result_text.h"

#include <QString>

namespace calculator {

/// The memory register. It belongs to the whole program and outlives the window.
struct Memory {
    double memoire = 0;
};

/// What the key rules need of a window.
class Face {
public:
    virtual ~Face() = default;

    /// The display's text has become `text`.
    virtual void showText(const QString& text) = 0;
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
    KeyRules(Memory& memory, Face& face, QChar decimalPoint);

    /// Empties the entry, as each loading of the window does.
    void load() { saisie_.clear(); }

    /// During an evaluation no key has any effect.
    void press(const Key& key);
    /// Presses the key that a typed character stands for; false when there is none.
    bool type(QChar character);

    void setAngles(AngleMode angles) { angles_ = angles; }
    /// Right after a result the display shows it again in the new format.
    void setFormat(Format format);

    /// Empties the display, upon which an evaluation under way ends as impossible. Nothing when
    /// there is none.
    void cancel();

    bool evaluating() const { return evaluating_; }
    const QString& saisie() const { return saisie_; }
    const QString& display() const { return display_; }

private:
    void show(const QString& text);
    void append(QStringView text);
    void appendFactor(QStringView text);
    void appendOperator(const Key& key);
    void answerFirst();
    void lastAnswer();
    void minus();
    void eraseBack();
    void addToMemory(double sign);
    void recallMemory();
    void evaluate();
    Evaluation evaluation();
    void takeResult(TextView result);
    bool displayIsBlank() const;

    Memory& memory_;
    Face& face_;
    const QChar decimalPoint_;

    QString saisie_;   ///< the expression being typed
    QString reponse_;  ///< what the last "=" showed, result or message
    QString derniere_; ///< the expression at the last "="
    ErrorCode erreur_ = ErrorCode::None;

    QString display_;
    AngleMode angles_ = AngleMode::Radians;
    Format format_ = Format::Standard;
    bool evaluating_ = false;
};

} // namespace calculator
