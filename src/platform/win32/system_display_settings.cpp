#include "platform/qt/system_display_settings.h"

#include <QProcess>

#include <windows.h>

namespace platform {

bool SystemDisplaySettings::open() {
    QProcess process;
    process.setProgram(QStringLiteral("rundll32.exe"));
    process.setNativeArguments(QStringLiteral("shell32.dll,Control_RunDLL desk.cpl,,3"));
    // Minimised and focused: the starter's own window, while the settings' one shows itself.
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
        arguments->startupInfo->wShowWindow = SW_SHOWMINIMIZED;
    });
    return process.startDetached();
}

} // namespace platform
