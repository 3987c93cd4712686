// What is different on desktops where X11 is not what they are made of.

#include "platform/unseen_windows.h"
#include "platform/x11_first.h"
#include "support/fake_processes.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

/// Variables as they are given, empty ones unset; as they were before at its end.
class Variables {
public:
    Variables(std::initializer_list<std::pair<const char*, QByteArray>> values) {
        for (const auto& [name, value] : values) {
            before_.emplace_back(name, qgetenv(name));
            set(name, value);
        }
    }
    ~Variables() {
        for (const auto& [name, value] : before_)
            set(name, value);
    }
    Variables(const Variables&) = delete;
    Variables& operator=(const Variables&) = delete;

private:
    static void set(const char* name, const QByteArray& value) {
        if (value.isEmpty())
            qunsetenv(name);
        else
            qputenv(name, value);
    }

    std::vector<std::pair<const char*, QByteArray>> before_;
};

} // namespace

TEST(X11First, isSaidToQtOnWaylandDesktopsThatHaveX11AndTakenBack) {
    const struct {
        QByteArray wayland, session, x11, chosen, said;
    } rows[] = {
        {"wayland-0", "", ":0", "", "xcb;wayland"},
        {"", "wayland", ":0", "", "xcb;wayland"},
        {"wayland-0", "wayland", "", "", ""},
        {"wayland-0", "wayland", ":0", "wayland", "wayland"},
        {"", "x11", ":0", "", ""},
        {"", "", "", "", ""},
    };
    for (const auto& row : rows) {
        const Variables variables{{"WAYLAND_DISPLAY", row.wayland},
                                  {"XDG_SESSION_TYPE", row.session},
                                  {"DISPLAY", row.x11},
                                  {"QT_QPA_PLATFORM", row.chosen}};
        {
            const platform::X11First x11First;
            EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), row.said);
        }
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), row.chosen);
    }
}

TEST(UnseenWindows, comeByThemselvesOnceAndAreThenSaidToStay) {
    test_support::FakeActivator x11;
    QStringList left;
    platform::UnseenWindows windows(x11, [&](const QString& program) { left << program; });
    x11.result = false;
    EXPECT_TRUE(windows.activate(1, "Simu21.exe"));
    EXPECT_TRUE(windows.activate(2, "Simu23.exe"));
    EXPECT_EQ(left, QStringList());
    EXPECT_FALSE(windows.activate(1, "Simu21.exe"));
    EXPECT_EQ(left, QStringList{"Simu21.exe"});

    x11.result = true; // as a Windows program's is, which Wine shows through X11
    EXPECT_TRUE(windows.activate(2, "Simu23.exe"));
    EXPECT_EQ(left.size(), 1);
}
