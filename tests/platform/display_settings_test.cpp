#include "platform/qt/system_display_settings.h"
#include "support/files.h"

#include <QTemporaryDir>

using test_support::eventually;

TEST(DisplaySettings, areThoseOfTheDesktopOrOfAnyOtherThatRunsThere) {
    const struct {
        const char* desktop;
        QStringList installed;
        const char* opened; ///< empty: none
    } rows[] = {
        {"", {}, ""},
        {"GNOME", {"arandr", "gnome-control-center"}, "gnome-control-center display"},
        {"ubuntu:GNOME", {"kcmshell5", "gnome-control-center"}, "gnome-control-center display"},
        {"XFCE", {"kcmshell5", "xfce4-display-settings"}, "xfce4-display-settings"},
        {"KDE", {"systemsettings", "kcmshell5"}, "kcmshell5 kcm_kscreen"},
        {"KDE", {"gnome-control-center"}, ""}, // which refuses to run there
        {"", {"gnome-control-center", "arandr", "lxrandr"}, "lxrandr"},
    };
    const QByteArray path = qgetenv("PATH");
    const QByteArray desktop = qgetenv("XDG_CURRENT_DESKTOP");
    for (const auto& row : rows) {
        const QTemporaryDir directory;
        for (const QString& program : row.installed)
            test_support::writeProgram(directory.filePath(program),
                                       "#!/bin/sh\necho ${0##*/} $* > " +
                                           directory.filePath("opened").toLocal8Bit() + '\n');
        qputenv("PATH", directory.path().toLocal8Bit());
        qputenv("XDG_CURRENT_DESKTOP", row.desktop);
        EXPECT_EQ(platform::SystemDisplaySettings().open(), *row.opened != '\0') << row.opened;
        EXPECT_TRUE(eventually([&] {
            return test_support::readFile(directory.filePath("opened")).trimmed() == row.opened;
        })) << row.opened;
    }
    qputenv("PATH", path);
    qputenv("XDG_CURRENT_DESKTOP", desktop);
}
