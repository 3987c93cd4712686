#include "platform/qt/system_display_settings.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

namespace platform {

namespace {

struct SettingsProgram {
    const char* desktop; ///< as in XDG_CURRENT_DESKTOP; empty for one that belongs to none
    const char* program;
    const char* argument; ///< names the display among the settings; empty for none
    bool elsewhere;       ///< whether it runs on other desktops too
};

/// In the order of preference within a desktop and among strangers.
constexpr SettingsProgram kPrograms[] = {
    {"GNOME", "gnome-control-center", "display", false},
    {"Unity", "unity-control-center", "display", false},
    {"KDE", "kcmshell6", "kcm_kscreen", true},
    {"KDE", "kcmshell5", "kcm_kscreen", true},
    {"KDE", "systemsettings", "kcm_kscreen", true},
    {"XFCE", "xfce4-display-settings", "", true},
    {"MATE", "mate-display-properties", "", true},
    {"X-Cinnamon", "cinnamon-settings", "display", false},
    {"LXQt", "lxqt-config-monitor", "", true},
    {"LXDE", "lxrandr", "", true},
    {"", "arandr", "", true},
    {"", "wdisplays", "", true},
};

bool start(const SettingsProgram& row) {
    const QString program = QStandardPaths::findExecutable(QString::fromLatin1(row.program));
    QStringList arguments;
    if (*row.argument != '\0')
        arguments.append(QString::fromLatin1(row.argument));
    return !program.isEmpty() && QProcess::startDetached(program, arguments, QDir::homePath());
}

} // namespace

bool SystemDisplaySettings::open() {
    // Such as "ubuntu:GNOME".
    const QStringList running = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    const auto isAtHome = [&](const SettingsProgram& row) {
        return *row.desktop != '\0' &&
               running.contains(QString::fromLatin1(row.desktop), Qt::CaseInsensitive);
    };
    for (const SettingsProgram& row : kPrograms) {
        if (isAtHome(row) && start(row))
            return true;
    }
    for (const SettingsProgram& row : kPrograms) {
        if (row.elsewhere && !isAtHome(row) && start(row))
            return true;
    }
    return false;
}

} // namespace platform
