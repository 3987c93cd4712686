#pragma once

#include <QIcon>

namespace look {

/// The program's own icon, for windows that no other window gives theirs.
inline QIcon programIcon() {
    return QIcon(QStringLiteral(":/look/icons/orvalente.svg"));
}

} // namespace look
