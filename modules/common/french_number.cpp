#include "common/french_number.h"

#include <QLocale>

#include <cmath>

namespace common {

namespace {

constexpr char16_t kMinus = 0x2212;
constexpr char16_t kThinBlank = 0x202F;

/// No number that anyone types is longer.
constexpr qsizetype kLongestNumber = 64;

/// Four digits stand together.
constexpr qsizetype kLeastGrouped = 5;

void groupDigits(QString& number) {
    const qsizetype first = number.startsWith(QChar(kMinus)) ? 1 : 0;
    const qsizetype comma = number.indexOf(u',');
    const qsizetype end = comma < 0 ? number.size() : comma;
    if (end - first < kLeastGrouped)
        return;
    for (qsizetype at = end - 3; at > first; at -= 3)
        number.insert(at, QChar(kThinBlank));
}

} // namespace

std::optional<double> numberFrom(const QString& text) {
    if (text.size() > kLongestNumber)
        return std::nullopt;
    QString plain;
    for (const QChar character : text) {
        if (character == QChar(kMinus))
            plain += u'-';
        else if (character == u',')
            plain += u'.';
        else if (!character.isSpace())
            plain += character;
    }
    bool isNumber = false;
    const double value = QLocale::c().toDouble(plain, &isNumber);
    // The C locale would take "1,000" for a thousand; here every comma is a decimal one.
    if (!isNumber || !std::isfinite(value) || plain.count(u'.') > 1)
        return std::nullopt;
    return value;
}

QString frenchNumber(double value, int decimals) {
    if (!std::isfinite(value))
        return QStringLiteral("∞");
    QString number = QString::number(std::fabs(value), 'f', decimals);
    const bool isZero = number.count(u'0') + number.count(u'.') == number.size();
    number.replace(u'.', u',');
    if (value < 0 && !isZero)
        number.prepend(QChar(kMinus));
    groupDigits(number);
    return number;
}

QString frenchDigits(double value, int digits) {
    if (value == 0 || !std::isfinite(value))
        return frenchNumber(value, 0);
    const int beforeComma = static_cast<int>(std::floor(std::log10(std::fabs(value)))) + 1;
    QString number = frenchNumber(value, qBound(0, digits - beforeComma, 6));
    if (number.contains(u',')) {
        while (number.endsWith(u'0'))
            number.chop(1);
        if (number.endsWith(u','))
            number.chop(1);
    }
    return number;
}

} // namespace common
