#include "calculator/key_rules.h"

#include "calculator/evaluator.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <cmath>

namespace calculator {

namespace {

const QString kWaiting = QStringLiteral("    Patience... Calculs en cours.     ");

/// A sign that a square root once had in the entry.
constexpr QChar kRootSign(251);

QString asQString(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

QChar lastOf(const QString& text) {
    return text.isEmpty() ? QChar() : text.back();
}

bool isOperator(QChar c) {
    return QStringView(u"*+/-^").contains(c);
}

/// What is left of `entry`, which ends with a space after a function's name, without that name.
QString withoutLastWord(const QString& entry) {
    for (qsizetype at = entry.size() - 2; at >= 0; --at) {
        if (entry[at] == u' ' || entry[at] == u'(')
            return entry.first(at + 1);
    }
    return {};
}

QString erasedBack(const QString& entry) {
    if (lastOf(entry) != u' ')
        return entry.chopped(1);
    const QChar before = entry.size() > 1 ? entry[entry.size() - 2] : QChar();
    if (isOperator(before))
        return entry.chopped(std::min<qsizetype>(3, entry.size()));
    if (before == kRootSign)
        return entry.chopped(2);
    return withoutLastWord(entry);
}

} // namespace

KeyRules::KeyRules(Memory& memory, Face& face, QChar decimalPoint)
    : memory_(memory), face_(face), decimalPoint_(decimalPoint) {}

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
        return appendFactor(asQString(text::trimmedNumberText(4 * std::atan(1.0))));
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

bool KeyRules::type(QChar character) {
    const Key* const key = keyTyped(character);
    if (key)
        press(*key);
    return key != nullptr;
}

void KeyRules::show(const QString& text) {
    display_ = text;
    face_.showText(text);
}

void KeyRules::append(QStringView text) {
    saisie_ += text;
    show(saisie_);
}

void KeyRules::appendFactor(QStringView text) {
    const QChar last = lastOf(saisie_);
    if (!saisie_.isEmpty() && last != u'(' && last != u'-' && last != u' ')
        saisie_ += u" * ";
    append(text);
}

void KeyRules::appendOperator(const Key& key) {
    if (displayIsBlank())
        return;
    answerFirst();
    const bool exponentSign = key.rule == Rule::Plus && lastOf(saisie_) == u'E';
    append(exponentSign ? QStringView(u"+") : key.appends);
}

void KeyRules::answerFirst() {
    if (saisie_.trimmed().isEmpty())
        lastAnswer();
}

void KeyRules::lastAnswer() {
    if (erreur_ == ErrorCode::None)
        saisie_ += reponse_.trimmed();
    show(saisie_);
}

/// A sign at the start, after an operator, after "(" and after an exponent's letter; after another
/// "-" a sign set apart; elsewhere the operator.
void KeyRules::minus() {
    const QChar last = lastOf(saisie_);
    if (saisie_.isEmpty() || last == u'(' || last == u' ' || last == u'E')
        append(u"-");
    else
        append(last == u'-' ? u" -" : u" - ");
}

void KeyRules::eraseBack() {
    if (saisie_.isEmpty())
        return;
    saisie_ = erasedBack(saisie_);
    show(saisie_);
}

/// A sum beyond a double's range leaves the memory as it is.
void KeyRules::addToMemory(double sign) {
    const double sum = memory_.memoire + sign * text::leadingNumber(display_.toStdU16String());
    if (std::isfinite(sum))
        memory_.memoire = sum;
}

/// Meant so: in scientific format the separator of the user's language stays, although a "," ends
/// the number when it is evaluated.
void KeyRules::recallMemory() {
    append(asQString(format_ == Format::Scientific
                         ? scientificText(memory_.memoire, decimalPoint_.unicode())
                         : text::trimmedNumberText(memory_.memoire)));
}

void KeyRules::setFormat(Format format) {
    format_ = format;
    if (evaluating_ || !saisie_.isEmpty())
        return;
    const QString entry = saisie_;
    takeResult(reponse_.toStdU16String());
    show(saisie_);
    saisie_ = entry;
}

void KeyRules::cancel() {
    if (evaluating_)
        show({});
}

void KeyRules::evaluate() {
    derniere_ = saisie_;
    const QString expression = saisie_;
    const Evaluation found = evaluation();
    erreur_ = found.error;
    if (erreur_ == ErrorCode::None) {
        takeResult(found.text);
    } else {
        saisie_ = asQString(message(erreur_));
        face_.beep();
    }
    show(saisie_);
    reponse_ = saisie_;
    saisie_ = erreur_ == ErrorCode::None ? QString() : expression;
}

Evaluation KeyRules::evaluation() {
    show(kWaiting);
    evaluating_ = true;
    Hooks hooks;
    hooks.cancelled = [this] {
        face_.breathe();
        return displayIsBlank();
    };
    Evaluation found = Evaluator(std::move(hooks)).evaluer(saisie_.toStdU16String(), angles_);
    evaluating_ = false;
    return found;
}

void KeyRules::takeResult(TextView result) {
    const auto line = resultLine(result, format_);
    saisie_ = asQString(line ? TextView(*line) : kOverflowMessage);
    if (!line)
        face_.beep();
}

bool KeyRules::displayIsBlank() const {
    return display_.trimmed().isEmpty();
}

} // namespace calculator
