#include "app/installation_window.h"

#include "setupinfo/maj2001.h"

#include <QCoreApplication>

namespace app {

void InstallationWindow::open() {
    const auto version = QVersionNumber::fromString(QStringLiteral(ORVALENTE_VERSION));
    const auto installation = setupinfo::readInstallation(
        state_.StatusFilePath, QCoreApplication::applicationFilePath(), version);
    setupinfo::Maj2001(installation, state_.InstallDir, starter_, &window_).exec();
}

} // namespace app
