#include "projectile/launch_text.h"

#include "common/french_number.h"

#include <QStringList>

namespace projectile {

namespace {

/// "v_0 = 20 m/s": the name is a formula, the unit upright.
QString formulaOf(const Distinction& one) {
    if (one.symbol == nullptr)
        return QStringLiteral("\\text{%1}").arg(QString::fromUtf16(one.words));
    const QString unit = QString::fromUtf16(one.unit);
    const QString blank = unit == QStringLiteral("°") ? QString() : QStringLiteral("\u00A0");
    return QStringLiteral("%1\u00A0=\u00A0%2\\text{%3%4}")
        .arg(QString::fromUtf16(one.symbol), common::frenchDigits(one.value, 3), blank, unit);
}

} // namespace

QString describe(const Launch& launch) {
    QStringList parts;
    for (const Distinction& one : distinctions(launch))
        parts += formulaOf(one);
    return parts.join(QStringLiteral(", "));
}

} // namespace projectile
