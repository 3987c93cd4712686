#include "calculator/key_rules.h"

#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace calculator {

namespace {

constexpr TextView kWaiting = u"    Patience... Calculs en cours.     ";

/// A sign that a square root once had in the entry.
constexpr char16_t kRootSign = 251;

/// The last character; null when there is none.
char16_t lastOf(TextView text) {
    return text.empty() ? u'\0' : text.back();
}

bool isOperator(char16_t c) {
    return TextView(u"*+/-^").find(c) != TextView::npos;
}

TextView trimmed(TextView text) {
    text.remove_prefix(std::min(text.find_first_not_of(u' '), text.size()));
    return text.substr(0, text.find_last_not_of(u' ') + 1);
}

bool isBlank(TextView text) {
    return trimmed(text).empty();
}

/// Characters of `entry`, which is not empty, that one stroke backwards leaves: it takes a whole
/// operator with its spaces, or the name of a function with the space after it.
std::size_t leftByErasing(TextView entry) {
    if (entry.back() != u' ')
        return entry.size() - 1;
    entry.remove_suffix(1);
    const char16_t before = lastOf(entry);
    if (isOperator(before))
        return entry.size() - std::min<std::size_t>(2, entry.size());
    if (before == kRootSign)
        return entry.size() - 1;
    return entry.find_last_of(u" (") + 1;
}

} // namespace

KeyRules::KeyRules(Memory& memory, CalculatorView& view, char16_t decimalPoint)
    : memory_(memory), view_(view), decimalPoint_(decimalPoint) {}

void KeyRules::press(const Key& key) {
    if (evaluating_)
        return;
    switch (key.rule) {
    case Rule::Append:
        return append(key.appends);
    case Rule::Times:
        return appendFactor(key.appends);
    case Rule::Operator:
    case Rule::Plus:
        return appendOperator(key);
    case Rule::Minus:
        return minus();
    case Rule::AfterAnswer:
        answerFirst();
        return append(key.appends);
    case Rule::Pi:
        return appendFactor(text::trimmedNumberText(4 * std::atan(1.0)));
    case Rule::LastAnswer:
        return lastAnswer();
    case Rule::RecallEntry:
        saisie_ = derniere_;
        return show(saisie_);
    case Rule::EraseBack:
        return eraseBack();
    case Rule::EraseAll:
        saisie_.clear();
        return show(saisie_);
    case Rule::MemoryAdd:
        return addToMemory(1);
    case Rule::MemorySubtract:
        return addToMemory(-1);
    case Rule::MemoryRecall:
        return recallMemory();
    case Rule::MemoryClear:
        memory_.memoire = 0;
        return;
    case Rule::Evaluate:
        return evaluate();
    }
}

bool KeyRules::type(char16_t character) {
    const Key* const key = keyTyped(character);
    if (key)
        press(*key);
    return key != nullptr;
}

void KeyRules::show(Text text) {
    display_ = std::move(text);
    view_.showText(display_);
}

void KeyRules::append(TextView text) {
    saisie_ += text;
    show(saisie_);
}

void KeyRules::appendFactor(TextView text) {
    const char16_t last = lastOf(saisie_);
    if (!saisie_.empty() && last != u'(' && last != u'-' && last != u' ')
        saisie_ += u" * ";
    append(text);
}

void KeyRules::appendOperator(const Key& key) {
    if (isBlank(display_))
        return;
    answerFirst();
    const bool exponentSign = key.rule == Rule::Plus && lastOf(saisie_) == u'E';
    append(exponentSign ? TextView(u"+") : key.appends);
}

void KeyRules::answerFirst() {
    if (isBlank(saisie_))
        lastAnswer();
}

void KeyRules::lastAnswer() {
    if (erreur_ == ErrorCode::None)
        saisie_ += trimmed(reponse_);
    show(saisie_);
}

/// A sign at the start, after an operator, after "(" and after an exponent's letter; after another
/// "-" a sign set apart; elsewhere the operator.
void KeyRules::minus() {
    const char16_t last = lastOf(saisie_);
    if (saisie_.empty() || last == u'(' || last == u' ' || last == u'E')
        append(u"-");
    else
        append(last == u'-' ? u" -" : u" - ");
}

void KeyRules::eraseBack() {
    if (saisie_.empty())
        return;
    saisie_.resize(leftByErasing(saisie_));
    show(saisie_);
}

/// A sum beyond a double's range leaves the memory as it is.
void KeyRules::addToMemory(double sign) {
    const double sum = memory_.memoire + sign * text::leadingNumber(display_);
    if (std::isfinite(sum))
        memory_.memoire = sum;
}

/// Meant so: in scientific format the separator of the user's language stays, although a "," ends
/// the number when it is evaluated.
void KeyRules::recallMemory() {
    append(format_ == Format::Scientific ? scientificText(memory_.memoire, decimalPoint_)
                                         : text::trimmedNumberText(memory_.memoire));
}

void KeyRules::setFormat(Format format) {
    format_ = format;
    if (evaluating_ || !saisie_.empty())
        return;
    say(answerWith(reponse_, format_));
}

void KeyRules::cancel() {
    if (evaluating_)
        show({});
}

void KeyRules::evaluate() {
    derniere_ = saisie_;
    const Answer found = answer();
    erreur_ = found.error;
    say(found);
    reponse_ = found.line;
    saisie_ = erreur_ == ErrorCode::None ? Text() : derniere_;
}

Answer KeyRules::answer() {
    show(Text(kWaiting));
    evaluating_ = true;
    Hooks hooks;
    hooks.cancelled = [this] {
        view_.breathe();
        return isBlank(display_);
    };
    Answer found = answerTo(derniere_, angles_, format_, std::move(hooks));
    evaluating_ = false;
    return found;
}

/// Shows what is to be said; a message with a beep.
void KeyRules::say(const Answer& answer) {
    if (answer.isMessage)
        view_.beep();
    show(answer.line);
}

} // namespace calculator
