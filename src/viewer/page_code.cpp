#include "viewer/page_code.h"

#include "page/numbers.h"

#include <cstdlib>

namespace viewer {

QString pageCode(int number) {
    const QString digits =
        QStringLiteral("%1").arg(std::abs(static_cast<long>(number)), 3, 10, QChar(u'0'));
    return QStringLiteral("PAG") + (number < 0 ? QStringLiteral("-") : QString()) + digits;
}

QStringView codePrefix(QStringView code) {
    return code.first(qMin<qsizetype>(3, code.size()));
}

double codeArgument(QStringView code) {
    return page::leadingNumber(code.last(qMin<qsizetype>(3, code.size())));
}

} // namespace viewer
