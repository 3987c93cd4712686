#pragma once

#include <QProcess>
#include <QSettings>

namespace look {

/// To be called before a dialog of the toolkit opens: these keep the folders that were visited in a
/// file of settings of their own, to find them there again. Nothing of this program stays behind,
/// so that their settings lead nowhere. (In the registry of Windows they cannot be led elsewhere.)
inline void keepNoSettings() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QProcess::nullDevice());
}

} // namespace look
