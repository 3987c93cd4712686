#include "orderform/price.h"

namespace orderform {

QString euros(int cents) {
    QString whole = QString::number(cents / 100);
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3)
        whole.insert(at, QChar(QChar::Nbsp));
    return QStringLiteral("%1,%2\u00A0€").arg(whole).arg(cents % 100, 2, 10, QChar(u'0'));
}

} // namespace orderform
